#include "workbench/CompareSide.h"

#include "workbench/LanguageTexts.h"
#include "workbench/NumberCombo.h"
#include "workbench/Vocabulary.h"

#include <QAction>
#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>

#include <array>

namespace workbench {

namespace {

enum FieldRow { Identity, Broker, Trader, OrderType, Operation, Modules, Last };

constexpr std::array kFields = {
    QT_TRANSLATE_NOOP("workbench", "Identity"),    QT_TRANSLATE_NOOP("workbench", "Broker type"),
    QT_TRANSLATE_NOOP("workbench", "Trader type"), QT_TRANSLATE_NOOP("workbench", "Order type"),
    QT_TRANSLATE_NOOP("workbench", "Operation"),   QT_TRANSLATE_NOOP("workbench", "Feature modules"),
};

constexpr int kShortestCombo = 8;

} // namespace

CompareSide::CompareSide(QGridLayout& form, int column, const char* name, LanguageTexts& texts)
    : QObject(form.parentWidget())
    , m_column(column)
    , m_name(name)
    , m_texts(texts)
    , m_identity(addNumber(form, Identity, new NumberCombo(identities(), TableSetup().identity)))
    , m_broker(addNumber(form, Broker, new NumberCombo(brokerTypes(), TableSetup().brokerType)))
    , m_trader(addNumber(form, Trader, new NumberCombo(traderTypes(), TableSetup().traderType)))
    , m_orderType(addNumber(form, OrderType, new NumberCombo(orderTypes(), CompareSetup().orderType)))
    , m_operation(addNumber(form, Operation, new NumberCombo(operationTypes(), CompareSetup().operationType)))
    , m_expanded(new QCheckBox)
    , m_modules(new QToolButton)
    , m_menu(new QMenu(m_modules))
    , m_panel(new QPushButton)
{
    addModules(form, Modules);
    addLast(form, Last);
    m_texts.keep([this] { nameFields(); });
}

void CompareSide::addLabels(QGridLayout& form, LanguageTexts& texts)
{
    for (std::size_t i = 0; i < kFields.size(); ++i) {
        auto* const label = new QLabel;
        form.addWidget(label, static_cast<int>(i), 0);
        texts.keep([label, name = kFields[i]] { label->setText(translated(name)); });
    }
}

NumberCombo* CompareSide::addNumber(QGridLayout& form, int row, NumberCombo* combo)
{
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(kShortestCombo);
    form.addWidget(combo, row, m_column);
    connect(combo, &NumberCombo::valueChanged, this, &CompareSide::changed);
    return combo;
}

void CompareSide::addModules(QGridLayout& form, int row)
{
    for (const char* path : featureModules()) {
        const QString module = QLatin1String(path);
        QAction* const action = m_menu->addAction(module.section(QLatin1Char('/'), 1));
        action->setCheckable(true);
        action->setData(module);
        connect(action, &QAction::toggled, this, [this] {
            countModules();
            Q_EMIT changed();
        });
    }
    m_modules->setMenu(m_menu);
    m_modules->setPopupMode(QToolButton::InstantPopup);
    m_modules->setFocusPolicy(Qt::StrongFocus);
    m_modules->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    form.addWidget(m_modules, row, m_column);
}

void CompareSide::addLast(QGridLayout& form, int row)
{
    m_expanded->setChecked(CompareSetup().isExpanded);
    form.addWidget(m_expanded, row, m_column);
    form.addWidget(m_panel, row + 1, m_column);
    connect(m_expanded, &QCheckBox::toggled, this, &CompareSide::changed);
    connect(m_panel, &QPushButton::clicked, this, &CompareSide::panelWanted);
}

QString CompareSide::withSide(const char* field) const
{
    return QStringLiteral("%1: %2").arg(translated(m_name), translated(field));
}

void CompareSide::nameFields()
{
    NumberCombo* const combos[] = {m_identity, m_broker, m_trader, m_orderType, m_operation};
    int row = Identity;
    for (NumberCombo* const combo : combos) {
        combo->retranslate();
        combo->setAccessibleName(withSide(kFields[static_cast<std::size_t>(row++)]));
    }
    m_modules->setAccessibleName(withSide(kFields[Modules]));
    m_expanded->setText(translated(QT_TRANSLATE_NOOP("workbench", "Expanded")));
    m_panel->setText(translated(QT_TRANSLATE_NOOP("workbench", "As the panel")));
    m_panel->setToolTip(translated(QT_TRANSLATE_NOOP("workbench", "Take what the order panel is made of")));
    countModules();
}

void CompareSide::countModules()
{
    m_modules->setText(QCoreApplication::translate("workbench", "%1 on").arg(setup().modules.size()));
}

CompareSetup CompareSide::setup() const
{
    CompareSetup setup;
    setup.table = m_rest;
    setup.table.identity = m_identity->value();
    setup.table.brokerType = m_broker->value();
    setup.table.traderType = m_trader->value();
    setup.orderType = m_orderType->value();
    setup.operationType = m_operation->value();
    setup.isExpanded = m_expanded->isChecked();
    for (const QAction* const action : m_menu->actions())
        if (action->isChecked())
            setup.modules << action->data().toString();
    return setup;
}

void CompareSide::focusBroker()
{
    m_broker->setFocus(Qt::ShortcutFocusReason);
    m_broker->lineEdit()->selectAll();
}

void CompareSide::setSetup(const CompareSetup& setup)
{
    const QSignalBlocker quiet(this);
    m_rest = setup.table;
    m_identity->setValue(setup.table.identity);
    m_broker->setValue(setup.table.brokerType);
    m_trader->setValue(setup.table.traderType);
    m_orderType->setValue(setup.orderType);
    m_operation->setValue(setup.operationType);
    m_expanded->setChecked(setup.isExpanded);
    for (QAction* const action : m_menu->actions())
        action->setChecked(setup.modules.contains(action->data().toString()));
}

} // namespace workbench
