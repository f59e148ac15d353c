#include "benchmarks/PanelJobs.h"
#include "benchmarks/Stage.h"
#include "support/ModuleGuard.h"

#include <QtTest>

#include <algorithm>

namespace {

int resizesWhenShown(const bench::Contender& contender)
{
    bench::Stage stage;
    const bench::EventCounter counter;
    stage.put(contender);
    QCoreApplication::processEvents();
    return counter.counts.resizes;
}

} // namespace

class tst_Contenders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theyShowTheSameRowsInBothModes()
    {
        const support::ModuleGuard modules{support::modules::kRandomVolume, support::modules::kCommandRemark};
        QCOMPARE(bench::differencesOfContenders(), QString());
    }

    // The switch that the goals are about.
    void aSwitchHidesEightRowsAndShowsSix()
    {
        const QSet<int> first = bench::modes()[0].shown;
        const QSet<int> second = bench::modes()[1].shown;
        QCOMPARE((first - second).size(), 8);
        QCOMPARE((second - first).size(), 6);
    }

    void quickChangesDifferFromTheOneBefore()
    {
        for (int step = 0; step < 20000; ++step)
            QVERIFY(qAbs(bench::changedNumber(step) - bench::changedNumber(step + 1)) > 0.5);
    }

    void everyContenderPaintsWhatChanges_data()
    {
        QTest::addColumn<int>("index");
        for (std::size_t i = 0; i < bench::contenders().size(); ++i)
            QTest::newRow(bench::contenders()[i].name) << int(i);
    }

    void everyContenderPaintsWhatChanges()
    {
        QFETCH(int, index);
        bench::Stage stage;
        stage.put(bench::contenders()[std::size_t(index)]);
        stage.peer().switchTo(bench::modes()[0]);
        bench::Stage::run();
        const bench::EventCounter counter;
        stage.peer().changeNumber(bench::changedNumber(5));
        bench::Stage::deliver();
        QVERIFY(counter.counts.paints > 0);
    }

    void heldPaintsComeLater()
    {
        bench::Stage stage;
        stage.put(bench::contenders()[bench::PaintedIndex]);
        bench::Stage::run();
        bench::EventCounter counter;
        {
            const bench::PaintHold hold;
            stage.peer().changeNumber(bench::changedNumber(5));
            bench::Stage::deliver();
            QCOMPARE(counter.counts.paints, 0);
        }
        QCoreApplication::postEvent(&stage.window(), new QEvent(QEvent::UpdateRequest));
        bench::Stage::deliver();
        QVERIFY(counter.counts.paints > 0);
    }

    // A frame that a style sheet puts around all tables once kept the layout from ever coming to rest.
    void underAFramingStyleSheetTheLayoutComesToRest()
    {
        qApp->setStyleSheet(bench::applicationStyleSheet());
        const int table = resizesWhenShown(bench::contenders()[bench::CellTableIndex]);
        const int panel = resizesWhenShown(bench::contenders()[bench::PanelIndex]);
        qApp->setStyleSheet(QString());
        QVERIFY2(table < 100, qPrintable(QString::number(table)));
        QVERIFY2(panel < 100, qPrintable(QString::number(panel)));
    }
};

QTEST_MAIN(tst_Contenders)
#include "tst_Contenders.moc"
