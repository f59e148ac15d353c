#include "workbench/OrderHeader.h"

#include "workbench/LanguageTexts.h"
#include "workbench/NumberCombo.h"
#include "workbench/Vocabulary.h"
#include "workbench/WideListCombo.h"

#include <ttservice/Enumerations.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStringListModel>

namespace workbench {

namespace {

constexpr int kShortestCombo = 6;
constexpr int kMostSeen = 20;

QString codeIn(const QString& entry)
{
    return entry.section(QLatin1Char(' '), 0, 0);
}

} // namespace

OrderHeader::OrderHeader(QWidget* parent)
    : QWidget(parent)
    , m_texts(new LanguageTexts(this))
    , m_code(new QLineEdit)
    , m_completer(new QCompleter(this))
    , m_name(new QLabel)
    , m_account(new WideListCombo)
    , m_operation(new NumberCombo(operationTypes(), ttservice::OPT_NONE))
{
    createFields();
    m_texts->keep([this] { nameFields(); });
    connect(m_code, &QLineEdit::returnPressed, this, &OrderHeader::takeCode);
    // What was typed and left is no instrument.
    connect(m_code, &QLineEdit::editingFinished, this, [this] { m_code->setText(m_chosen); });
    connect(
        m_completer, QOverload<const QString&>::of(&QCompleter::activated), this,
        [this](const QString& entry) { choose(codeIn(entry)); }, Qt::QueuedConnection);
    connect(m_account, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { Q_EMIT accountChosen(account(), brokerTypeAt(index)); });
    connect(m_operation, &NumberCombo::valueChanged, this, &OrderHeader::operationChosen);
}

void OrderHeader::createFields()
{
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 6);
    grid->setSpacing(4);
    m_completer->setModel(new QStringListModel(m_completer));
    m_completer->setFilterMode(Qt::MatchContains);
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_code->setCompleter(m_completer);
    m_code->setObjectName(QStringLiteral("instrumentCode"));
    m_name->setObjectName(QStringLiteral("instrumentName"));
    m_name->setMinimumWidth(1);
    for (QComboBox* const combo : {m_account, static_cast<QComboBox*>(m_operation)}) {
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(kShortestCombo);
        combo->setMaxVisibleItems(kMostSeen);
    }
    grid->addWidget(m_code, 0, 0);
    grid->addWidget(m_name, 0, 1);
    grid->addWidget(m_account, 1, 0);
    grid->addWidget(m_operation, 1, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
}

void OrderHeader::nameFields()
{
    m_code->setPlaceholderText(translated(QT_TRANSLATE_NOOP("workbench", "Code or name")));
    m_code->setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "Instrument")));
    m_code->setToolTip(translated(QT_TRANSLATE_NOOP("workbench", "Instrument: a part of its code or name, Enter")));
    m_account->setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "Account")));
    m_account->setToolTip(
        translated(QT_TRANSLATE_NOOP("workbench", "Account; its broker type says what the panel is made of")));
    m_operation->setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "Operation")));
    m_operation->setToolTip(translated(QT_TRANSLATE_NOOP("workbench", "Operation")));
    m_operation->retranslate();
    listAccounts();
    showInstrument(m_chosen);
}

void OrderHeader::setInstruments(std::vector<Instrument> instruments)
{
    m_instruments = std::move(instruments);
    QStringList entries;
    for (const Instrument& instrument : m_instruments)
        entries << instrument.code + QStringLiteral("  ") + instrument.name;
    static_cast<QStringListModel*>(m_completer->model())->setStringList(entries);
    showInstrument(m_chosen);
}

void OrderHeader::setAccounts(std::vector<HostAccount> accounts)
{
    m_accounts = std::move(accounts);
    listAccounts();
}

void OrderHeader::listAccounts()
{
    const QString chosen = account();
    m_account->clear();
    for (const HostAccount& account : m_accounts)
        m_account->addItem(QStringLiteral("%1  %2").arg(account.id, account.name), account.key);
    showAccount(chosen);
}

void OrderHeader::showInstrument(const QString& code)
{
    m_chosen = code;
    // The field is the person's while he types.
    if (!m_code->hasFocus())
        m_code->setText(code);
    const QString name = instrument().name;
    const QString unknown = translated(QT_TRANSLATE_NOOP("workbench", "unknown instrument"));
    m_name->setText(!name.isEmpty() || code.isEmpty() ? name : unknown);
    m_name->setToolTip(m_name->text());
}

void OrderHeader::showOperation(int operationType)
{
    if (m_operation->value() != operationType)
        m_operation->setValue(operationType);
}

void OrderHeader::showAccount(const QString& key)
{
    m_account->setCurrentIndex(m_account->findData(key));
}

int OrderHeader::brokerTypeAt(int index) const
{
    return index >= 0 && index < int(m_accounts.size()) ? m_accounts[std::size_t(index)].brokerType : 0;
}

void OrderHeader::showBroker(int brokerType)
{
    if (brokerTypeAt(m_account->currentIndex()) == brokerType)
        return;
    int index = -1;
    for (int i = m_account->count() - 1; i >= 0; --i)
        if (brokerTypeAt(i) == brokerType)
            index = i;
    m_account->setCurrentIndex(index);
}

Instrument OrderHeader::instrument() const
{
    return instrumentOf(m_instruments, m_chosen);
}

QString OrderHeader::account() const
{
    return m_account->currentData().toString();
}

void OrderHeader::focusCode()
{
    m_code->setFocus(Qt::ShortcutFocusReason);
    m_code->selectAll();
}

/// The list below the field shows what Enter takes: the row that was gone to, else the first one, unless the text is a
/// whole code.
void OrderHeader::takeCode()
{
    const QString typed = m_code->text().trimmed();
    const bool isListed = m_completer->popup()->isVisible() && m_completer->completionCount() > 0;
    const bool isWhole = !instrumentOf(m_instruments, typed).name.isEmpty();
    const QModelIndex first = m_completer->completionModel()->index(0, 0);
    const QModelIndex chosen = isListed ? m_completer->popup()->currentIndex() : QModelIndex();
    if (chosen.isValid())
        choose(codeIn(chosen.data().toString()));
    else if (isListed && !isWhole)
        choose(codeIn(first.data().toString()));
    else
        choose(codeIn(typed));
}

void OrderHeader::choose(const QString& code)
{
    m_completer->popup()->hide();
    m_chosen = code;
    m_code->setText(code);
    showInstrument(code);
    Q_EMIT instrumentChosen(code);
}

} // namespace workbench
