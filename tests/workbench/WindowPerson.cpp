#include "WindowPerson.h"

#include "workbench/MainWindow.h"
#include "workbench/Snapshot.h"

#include "reference/toolkit/CMultiParamsTablePrivate.h"
#include "reference/toolkit/editors/PersonEdits.h"

#include <WQ/CDropDownButtonGroup.h>
#include <WQ/CPushButton.h>

#include <QApplication>
#include <QPushButton>
#include <QtTest>

namespace person {

namespace {

using WQ::PersonEdit;

template <class Value>
PersonEdit edited(std::optional<Value> PersonEdit::*member, const Value& value)
{
    PersonEdit edit;
    edit.*member = value;
    return edit;
}

std::vector<PersonEdit> numberEdits(const WQ::NumberCell& cell)
{
    std::vector<PersonEdit> edits = {
        edited(&PersonEdit::text, QString::number(qMin(3.0, cell.maximum()))),
        edited(&PersonEdit::unit, cell.units().constLast().text),
    };
    if (cell.kind() == WQ::CellKind::CheckNumber)
        edits.push_back(edited(&PersonEdit::checked, !cell.isChecked()));
    return edits;
}

/// What a person does in that kind of cell, so that it holds another value afterwards.
std::vector<PersonEdit> editsOf(const WQ::CellItem& cell)
{
    switch (cell.kind()) {
    case WQ::CellKind::Combo:
        return {edited(&PersonEdit::index, static_cast<const WQ::ComboCell&>(cell).count() - 1),
                edited(&PersonEdit::index, 0)};
    case WQ::CellKind::Number:
    case WQ::CellKind::CheckNumber:
        return numberEdits(static_cast<const WQ::NumberCell&>(cell));
    case WQ::CellKind::TimePeriod:
        return {edited(&PersonEdit::time, qMakePair(QStringLiteral("10:15:00"), QStringLiteral("11:20:30"))),
                edited(&PersonEdit::duration, QStringLiteral("00:45:00"))};
    case WQ::CellKind::Line:
    case WQ::CellKind::Text:
        return {edited(&PersonEdit::text, QStringLiteral("备注 1"))};
    case WQ::CellKind::Range:
        return {edited(&PersonEdit::range, qMakePair(QStringLiteral("1"), QStringLiteral("2")))};
    }
    return {};
}

} // namespace

std::unique_ptr<workbench::MainWindow> open(const workbench::HostData& data)
{
    auto window = std::make_unique<workbench::MainWindow>(data);
    window->chooseLanguage(QStringLiteral("en"));
    window->show();
    workbench::settle();
    return window;
}

void editAllCells(const QWidget& parent)
{
    auto* cells = parent.findChild<WQ::CMultiParamsTable*>();
    QVERIFY(cells);
    const WQ::CellModel& model = WQ::CMultiParamsTablePrivate::of(cells)->model();
    for (int i = 0; i < model.cellCount(); ++i) {
        const WQ::CellItem& cell = *model.itemAt(i)->cell();
        for (const PersonEdit& edit : editsOf(cell)) {
            WQ::applyPersonEdit(*cells, cell.id(), edit);
            QCoreApplication::processEvents();
        }
    }
}

void typeInto(WQ::CMultiParamsTable& cells, int id, const QString& text)
{
    cells.setFocus();
    cells.setCurrentIndex(WQ::CMultiParamsTablePrivate::of(&cells)->model().valueIndex(id));
    QTest::keyClicks(&cells, text.left(1));
    QVERIFY(QApplication::focusWidget());
    QTest::keyClicks(QApplication::focusWidget(), text.mid(1));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    workbench::settle();
}

void clickButton(const QWidget& parent, int id)
{
    for (auto* button : parent.findChildren<WQ::CPushButton*>()) {
        if (button->id() != id)
            continue;
        // One that the strip is too narrow for is chosen in the drop-down, which clicks it.
        const bool isInStrip = qobject_cast<WQ::CDropDownButtonGroup*>(button->parentWidget()) != nullptr;
        QVERIFY(button->isVisible() || isInStrip);
        if (button->isVisible())
            QTest::mouseClick(button, Qt::LeftButton);
        else
            button->click();
        QCoreApplication::processEvents();
        return;
    }
    QFAIL("no such button");
}

void clickText(const QWidget& parent, const QString& text)
{
    for (auto* button : parent.findChildren<QPushButton*>())
        if (button->text() == text)
            return button->click();
    QFAIL(qPrintable(text));
}

} // namespace person
