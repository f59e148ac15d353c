#include "CutTexts.h"

#include "workbench/Appearance.h"
#include "workbench/HostData.h"
#include "workbench/Language.h"
#include "workbench/MainWindow.h"
#include "workbench/Snapshot.h"

#include "reference/services/ServiceControl.h"

#include <QDockWidget>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

using namespace workbench;

/// Nothing that a person needs is cut in a window of 1024 x 700, in any language, at any scale. At the larger scales
/// the window may be as large as its parts need it.
class tst_Room : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cutTextsAreFound();
    void everyPartHasRoomInASmallWindow_data();
    void everyPartHasRoomInASmallWindow();
};

void tst_Room::initTestCase()
{
    reference::resetServices();
    dressApplication();
}

void tst_Room::cutTextsAreFound()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* label = new QLabel(QStringLiteral("a long label"));
    auto* button = new QPushButton(QStringLiteral("a long button"));
    layout->addWidget(label);
    layout->addWidget(button);
    window.show();
    settle();
    QCOMPARE(walk::cutTexts(window), QStringList());
    label->setFixedWidth(20);
    button->setFixedWidth(20);
    settle();
    QCOMPARE(walk::cutTexts(window).size(), 2);
    label->setToolTip(label->text());
    QCOMPARE(walk::cutTexts(window).size(), 1);
    button->setFixedWidth(300);
    window.resize(100, window.height());
    window.setFixedWidth(100);
    settle();
    QCOMPARE(walk::cutTexts(window), QStringList{QStringLiteral("QPushButton lies outside: ")});
}

void tst_Room::everyPartHasRoomInASmallWindow_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<double>("scale");
    for (const QString& name : languages())
        for (const double scale : {1.0, 2.0, 3.0})
            QTest::addRow("%s at %.0f", qPrintable(name), scale) << name << scale;
}

void tst_Room::everyPartHasRoomInASmallWindow()
{
    QFETCH(QString, language);
    QFETCH(double, scale);
    setLanguage(language);
    setScale(scale);
    MainWindow window(loadHostData(QString()));
    window.resize(1024, 700);
    window.show();
    settle();
    if (scale < 2.0)
        QCOMPARE(window.size(), QSize(1024, 700));
    QStringList found;
    for (auto* dock : window.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        dock->raise();
        settle();
        for (const QString& cut : walk::cutTexts(window))
            if (!found.contains(cut))
                found << cut;
    }
    QVERIFY2(found.isEmpty(), qPrintable(found.join(QLatin1Char('\n'))));
}

QTEST_MAIN(tst_Room)
#include "tst_Room.moc"
