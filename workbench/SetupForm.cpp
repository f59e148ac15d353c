#include "workbench/SetupForm.h"

#include "workbench/LanguageTexts.h"
#include "workbench/NumberCombo.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>

#include <array>

namespace workbench {

namespace {

struct ClassRow
{
    TableClass value;
    const char* name;
    bool hasStripAndScale;
    bool hasTrader;
    bool hasAutoBook;
};

// clang-format off
constexpr std::array kClasses = {
    ClassRow{TableClass::Global,   QT_TRANSLATE_NOOP("workbench", "Global table"),    true,  true,  true},
    ClassRow{TableClass::Code,     QT_TRANSLATE_NOOP("workbench", "Code table"),      true,  true,  false},
    ClassRow{TableClass::StopLoss, QT_TRANSLATE_NOOP("workbench", "Stop-loss table"), false, false, false},
};
// clang-format on

constexpr int kRowSpacing = 4;

/// As high as all of its rows: the form around it scrolls.
class ModuleList : public QListWidget
{
public:
    ModuleList()
    {
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        setTextElideMode(Qt::ElideMiddle);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }

    QSize sizeHint() const override
    {
        const int rows = count() * qMax(sizeHintForRow(0), fontMetrics().height());
        return {QListWidget::sizeHint().width(), rows + 2 * frameWidth()};
    }

    QSize minimumSizeHint() const override
    {
        return {QListWidget::minimumSizeHint().width(), sizeHint().height()};
    }

protected:
    void changeEvent(QEvent* event) override
    {
        QListWidget::changeEvent(event);
        if (event->type() == QEvent::FontChange)
            updateGeometry();
    }
};

} // namespace

SetupForm::SetupForm(QWidget* parent)
    : QWidget(parent)
    , m_texts(new LanguageTexts(this))
    , m_form(new QFormLayout(this))
    , m_class(addClassChoice())
    , m_identity(addNumber(QT_TRANSLATE_NOOP("workbench", "&Identity"), new NumberCombo(identities(), 5)))
    , m_broker(addNumber(QT_TRANSLATE_NOOP("workbench", "&Broker type"), new NumberCombo(brokerTypes(), 2)))
    , m_trader(addNumber(QT_TRANSLATE_NOOP("workbench", "T&rader type"), new NumberCombo(traderTypes(), 1)))
    , m_modules(addModules())
    , m_modeButtons(addCheck(QT_TRANSLATE_NOOP("workbench", "Order-&mode buttons")))
    , m_fontScale(addCheck(QT_TRANSLATE_NOOP("workbench", "Table follo&ws the UI scale")))
    , m_autoBook(addCheck(QT_TRANSLATE_NOOP("workbench", "&Automatic order book allowed")))
{
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_form->setRowWrapPolicy(QFormLayout::DontWrapRows);
    m_form->setVerticalSpacing(kRowSpacing);
    setSetup({});
    followClass();
}

QComboBox* SetupForm::addClassChoice()
{
    auto* choice = new QComboBox;
    for (const ClassRow& row : kClasses)
        choice->addItem(QString(), static_cast<int>(row.value));
    m_texts->keep([choice] {
        for (std::size_t i = 0; i < kClasses.size(); ++i)
            choice->setItemText(static_cast<int>(i), translated(kClasses[i].name));
    });
    auto* label = new QLabel;
    label->setBuddy(choice);
    m_form->addRow(label, choice);
    m_texts->keep([label] { label->setText(translated(QT_TRANSLATE_NOOP("workbench", "Table c&lass"))); });
    connect(choice, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
        followClass();
        Q_EMIT setupChanged();
    });
    return choice;
}

NumberCombo* SetupForm::addNumber(const char* label, NumberCombo* combo)
{
    auto* title = new QLabel;
    title->setBuddy(combo);
    m_form->addRow(title, combo);
    m_texts->keep([label, title, combo] {
        title->setText(translated(label));
        combo->retranslate();
    });
    connect(combo, &NumberCombo::valueChanged, this, &SetupForm::setupChanged);
    return combo;
}

QCheckBox* SetupForm::addCheck(const char* label)
{
    auto* check = new QCheckBox;
    m_form->addRow(check);
    m_texts->keep([label, check] { check->setText(translated(label)); });
    connect(check, &QCheckBox::toggled, this, &SetupForm::setupChanged);
    return check;
}

QListWidget* SetupForm::addModules()
{
    auto* const list = new ModuleList;
    for (const char* path : featureModules()) {
        const QString module = QLatin1String(path);
        auto* item = new QListWidgetItem(module.section(QLatin1Char('/'), 1), list);
        item->setData(Qt::UserRole, module);
        item->setToolTip(module);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    auto* label = new QLabel;
    label->setBuddy(list);
    m_texts->keep([label] { label->setText(translated(QT_TRANSLATE_NOOP("workbench", "Feature modules (&y)"))); });
    m_form->addRow(label);
    m_form->addRow(list);
    connect(list, &QListWidget::itemChanged, this, [this] { Q_EMIT modulesChanged(modules()); });
    return list;
}

void SetupForm::followClass()
{
    const ClassRow& row = kClasses[static_cast<std::size_t>(qMax(0, m_class->currentIndex()))];
    m_modeButtons->setEnabled(row.hasStripAndScale);
    m_fontScale->setEnabled(row.hasStripAndScale);
    m_trader->setEnabled(row.hasTrader);
    m_autoBook->setEnabled(row.hasAutoBook);
}

TableSetup SetupForm::setup() const
{
    TableSetup setup;
    setup.tableClass = static_cast<TableClass>(m_class->currentData().toInt());
    setup.identity = m_identity->value();
    setup.brokerType = m_broker->value();
    setup.traderType = m_trader->value();
    setup.modeButtons = m_modeButtons->isChecked();
    setup.fontScale = m_fontScale->isChecked();
    setup.autoBook = m_autoBook->isChecked();
    return setup;
}

void SetupForm::setSetup(const TableSetup& setup)
{
    const QSignalBlocker quiet(this);
    m_class->setCurrentIndex(m_class->findData(static_cast<int>(setup.tableClass)));
    m_identity->setValue(setup.identity);
    m_broker->setValue(setup.brokerType);
    m_trader->setValue(setup.traderType);
    m_modeButtons->setChecked(setup.modeButtons);
    m_fontScale->setChecked(setup.fontScale);
    m_autoBook->setChecked(setup.autoBook);
}

QStringList SetupForm::modules() const
{
    QStringList ticked;
    for (int i = 0; i < m_modules->count(); ++i)
        if (m_modules->item(i)->checkState() == Qt::Checked)
            ticked << m_modules->item(i)->data(Qt::UserRole).toString();
    return ticked;
}

void SetupForm::setModules(const QStringList& modules)
{
    const QSignalBlocker quiet(m_modules);
    for (int i = 0; i < m_modules->count(); ++i) {
        QListWidgetItem* item = m_modules->item(i);
        const bool on = modules.contains(item->data(Qt::UserRole).toString());
        item->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    }
    m_modules->viewport()->update();
}

} // namespace workbench
