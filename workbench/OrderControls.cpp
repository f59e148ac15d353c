#include "workbench/OrderControls.h"

#include "workbench/FlagsEditor.h"
#include "workbench/HostCalls.h"
#include "workbench/LanguageTexts.h"
#include "workbench/NumberCombo.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

namespace workbench {

namespace {

constexpr double kLargestPrice = 1e6;
constexpr int kPriceDecimals = 3;

/// Asks only what changes nothing: it is called from inside the table's own events.
QString answersOf(const TC::COrderParamBaseTable& table)
{
    return translated(QT_TRANSLATE_NOOP("workbench", "Order type %1 · operation %2 · price type %3 %4 · code %5"))
        .arg(table.orderType())
        .arg(table.getOperationType())
        .arg(table.priceType())
        .arg(labelOf(priceTypes(), table.priceType()), table.getStockCode());
}

} // namespace

OrderControls::OrderControls(QWidget* parent)
    : QWidget(parent)
    , m_texts(new LanguageTexts(this))
    , m_form(new QFormLayout(this))
    , m_orderType(addNumber(QT_TRANSLATE_NOOP("workbench", "&Order type"), new NumberCombo(orderTypes(), 0)))
    , m_operation(addNumber(QT_TRANSLATE_NOOP("workbench", "O&peration"), new NumberCombo(operationTypes(), -1)))
    , m_expanded(addCheck(QT_TRANSLATE_NOOP("workbench", "E&xpanded"), false))
    , m_enabled(addCheck(QT_TRANSLATE_NOOP("workbench", "Cells e&nabled"), true))
    , m_priceType(new QComboBox)
    , m_code(new QLineEdit)
    , m_price(new QDoubleSpinBox)
    , m_flags(new FlagsEditor)
    , m_answers(new QLabel)
{
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addPriceType();
    addCode();
    addPrice();
    auto* title = new QLabel;
    title->setBuddy(m_flags);
    m_texts->keep(
        [title] { title->setText(translated(QT_TRANSLATE_NOOP("workbench", "Cells allowed by the host (&flags)"))); });
    m_form->addRow(title);
    m_form->addRow(m_flags);
    addAnswers();
    connectControls();
}

NumberCombo* OrderControls::addNumber(const char* label, NumberCombo* combo)
{
    auto* title = new QLabel;
    title->setBuddy(combo);
    m_form->addRow(title, combo);
    m_texts->keep([label, title, combo] {
        title->setText(translated(label));
        combo->retranslate();
    });
    return combo;
}

QCheckBox* OrderControls::addCheck(const char* label, bool checked)
{
    auto* check = new QCheckBox;
    check->setChecked(checked);
    m_form->addRow(check);
    m_texts->keep([label, check] { check->setText(translated(label)); });
    return check;
}

void OrderControls::addPriceType()
{
    auto* title = new QLabel;
    title->setBuddy(m_priceType);
    for (const LabelledValue& row : priceTypes())
        m_priceType->addItem(QStringLiteral("%1  %2").arg(row.value).arg(row.label.toString()), row.value);
    m_form->addRow(title, m_priceType);
    m_texts->keep([title] { title->setText(translated(QT_TRANSLATE_NOOP("workbench", "Price type (&k)"))); });
    connect(m_priceType, QOverload<int>::of(&QComboBox::activated), this, [this] {
        if (m_table)
            hostCall(*m_table, calls::kSetPriceType, ttservice::EPriceType(m_priceType->currentData().toInt()));
        Q_EMIT tableDriven();
    });
}

void OrderControls::addCode()
{
    auto* title = new QLabel;
    title->setBuddy(m_code);
    m_form->addRow(title, m_code);
    m_texts->keep([title] { title->setText(translated(QT_TRANSLATE_NOOP("workbench", "Instrument &code"))); });
    connect(m_code, &QLineEdit::editingFinished, this, [this] { chooseCode(m_code->text()); });
}

void OrderControls::chooseCode(const QString& code)
{
    if (code == m_drive.code)
        return;
    m_drive.code = code;
    m_code->setText(code);
    if (m_table)
        hostCall(*m_table, calls::kSetStockCode, m_drive.code);
    Q_EMIT tableDriven();
}

void OrderControls::chooseOperation(int operationType)
{
    m_drive.operationType = operationType;
    if (m_table)
        hostCall(*m_table, calls::kSetOperationType, ttservice::EOperationType(operationType));
    Q_EMIT tableDriven();
}

void OrderControls::addPrice()
{
    auto* row = new QHBoxLayout;
    auto* fix = new QPushButton;
    auto* title = new QLabel;
    m_price->setRange(0.0, kLargestPrice);
    m_price->setDecimals(kPriceDecimals);
    m_price->setValue(10.0);
    title->setBuddy(m_price);
    row->addWidget(m_price, 1);
    row->addWidget(fix);
    m_form->addRow(title, row);
    m_texts->keep([title, fix] {
        title->setText(translated(QT_TRANSLATE_NOOP("workbench", "&Specified price")));
        fix->setText(translated(QT_TRANSLATE_NOOP("workbench", "Set")));
    });
    connect(fix, &QPushButton::clicked, this, [this] {
        if (m_table)
            hostCall(*m_table, calls::kSetFixedPrice, m_price->value());
        Q_EMIT tableDriven();
    });
}

void OrderControls::addAnswers()
{
    m_answers->setWordWrap(true);
    m_answers->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_form->addRow(m_answers);
    m_texts->keep([this] { refresh(); });
}

void OrderControls::connectControls()
{
    const auto apply = [this](const auto& call, auto value) {
        if (m_table)
            hostCall(*m_table, call, value);
        Q_EMIT tableDriven();
    };
    connect(m_orderType, &NumberCombo::valueChanged, this, [this, apply](int type) {
        m_drive.orderType = type;
        apply(calls::kSetOrderType, ttservice::EOrderType(type));
    });
    connect(m_operation, &NumberCombo::valueChanged, this, &OrderControls::chooseOperation);
    connect(m_flags, &FlagsEditor::flagsChanged, this, [this, apply](int flags) {
        m_drive.flags = flags;
        apply(calls::kSetFlag, TC::OperationCellFlags(flags));
    });
    connect(m_expanded, &QCheckBox::toggled, this, [this, apply](bool expanded) {
        m_drive.expanded = expanded;
        apply(calls::kSetExpandItemsHidden, !expanded);
    });
    connect(m_enabled, &QCheckBox::toggled, this, [this, apply](bool enabled) {
        m_drive.enabled = enabled;
        apply(calls::kSetAllItemEnable, enabled);
    });
}

void OrderControls::setTable(TC::COrderParamBaseTable* table)
{
    m_table = table;
    refresh();
}

TableDrive OrderControls::drive() const
{
    return m_drive;
}

void OrderControls::setDrive(const TableDrive& drive)
{
    m_drive = drive;
    m_code->setText(drive.code);
    if (drive.flags)
        m_flags->setFlags(*drive.flags);
    const QSignalBlocker quiet(m_enabled);
    m_enabled->setChecked(drive.enabled);
}

void OrderControls::refresh()
{
    if (!m_table) {
        m_answers->clear();
        return;
    }
    m_orderType->setValue(m_table->orderType());
    m_operation->setValue(m_table->getOperationType());
    const QSignalBlocker quiet(m_expanded);
    m_expanded->setChecked(m_table->isExpand());
    const QSignalBlocker calm(m_priceType);
    m_priceType->setCurrentIndex(m_priceType->findData(int(m_table->priceType())));
    m_answers->setText(answersOf(*m_table));
}

} // namespace workbench
