#include "workbench/CreditPanel.h"

#include "workbench/HostCalls.h"
#include "workbench/LanguageTexts.h"
#include "workbench/NumberCombo.h"

#include <WQ/CUiResource.h>

#include <boost/make_shared.hpp>

#include <QCoreApplication>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace workbench {

namespace {

constexpr int kAccountRow = 726;

/// A contract of this host.
struct Contract : ttservice::IData
{
    std::string getKey() const override
    {
        return "C-2024-0001";
    }
};

boost::shared_ptr<ttservice::CStkCompactsV2> sampleContract()
{
    auto contract = boost::make_shared<ttservice::CStkCompactsV2>();
    contract->unrepaidVolume = 3000;
    contract->unrepaidFees = 1234.56;
    contract->data = boost::make_shared<Contract>();
    return contract;
}

} // namespace

QString creditParam(int operation)
{
    return QStringLiteral("%1+%1-726=88005678-727=600000-728=3000-729=1200-730=250000-731=1200").arg(operation);
}

CreditPanel::CreditPanel(Recorder* recorder, QWidget* parent)
    : PanelHost(parent)
    , m_texts(new LanguageTexts(this))
    , m_table(makeTable(recorder))
    , m_operation(new NumberCombo(creditOperations(), ttservice::OPT_REPAY_SECURITIES_BY_BUYING))
    , m_account(new QLineEdit)
    , m_code(new QLineEdit(QStringLiteral("600000")))
    , m_param(new QLineEdit(creditParam(ttservice::OPT_REPAY_SECURITIES_BY_BUYING)))
    , m_answers(new QLabel)
    , m_answer(new QLineEdit)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    auto* form = new QFormLayout;
    createForm(form);
    layout->addLayout(form);
    layout->addWidget(m_table, 1, Qt::AlignLeft | Qt::AlignTop);
    m_answers->setWordWrap(true);
    m_answers->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    layout->addWidget(m_answers);
    // A parameter string has no place to break a line at, and would make the window as wide as it is long.
    m_answer->setReadOnly(true);
    layout->addWidget(m_answer);
    m_texts->keep([this] {
        m_answer->setAccessibleName(translated(QT_TRANSLATE_NOOP("workbench", "Parameter string")));
        showAnswers();
    });
    fitTable();
}

TC::CCreditParamTable* CreditPanel::makeTable(Recorder* recorder)
{
    setRecorder(recorder);
    return make<TC::CCreditParamTable>({"CCreditParamTable", "credit"},
                                       [](QWidget* parent) { return new TC::CCreditParamTable(parent); });
}

QPushButton* CreditPanel::addEntry(QFormLayout* form, QLineEdit* edit, const char* label, const char* button)
{
    auto* row = new QHBoxLayout;
    auto* title = new QLabel;
    auto* push = new QPushButton;
    title->setBuddy(edit);
    edit->setCursorPosition(0);
    row->addWidget(edit, 1);
    row->addWidget(push);
    form->addRow(title, row);
    m_texts->keep([=] {
        title->setText(translated(label));
        push->setText(translated(button));
    });
    return push;
}

void CreditPanel::createForm(QFormLayout* form)
{
    auto* title = new QLabel;
    auto* contract = new QPushButton;
    title->setBuddy(m_operation);
    form->addRow(title, m_operation);
    m_texts->keep([this, title, contract] {
        title->setText(translated(QT_TRANSLATE_NOOP("workbench", "Operation")));
        contract->setText(translated(QT_TRANSLATE_NOOP("workbench", "Choose a contract")));
        m_operation->retranslate();
    });
    QPushButton* select =
        addEntry(form, m_account, QT_TRANSLATE_NOOP("workbench", "Account"), QT_TRANSLATE_NOOP("workbench", "Select"));
    QPushButton* enter =
        addEntry(form, m_code, QT_TRANSLATE_NOOP("workbench", "Code"), QT_TRANSLATE_NOOP("workbench", "Enter"));
    QPushButton* load = addEntry(form, m_param, QT_TRANSLATE_NOOP("workbench", "Parameter string"),
                                 QT_TRANSLATE_NOOP("workbench", "Load"));
    form->addRow(contract);
    connect(m_operation, &NumberCombo::valueChanged, this, &CreditPanel::setOperation);
    connect(select, &QPushButton::clicked, this, [this] {
        hostCall(*m_table, calls::kSelectCreditAccount, m_account->text().toStdString());
        showAnswers();
    });
    connect(enter, &QPushButton::clicked, this, [this] {
        hostCall(*m_table, calls::kSetCreditCode, m_code->text(), std::string(), false);
        showAnswers();
    });
    connect(load, &QPushButton::clicked, this, [this] { applyParam(m_param->text()); });
    connect(contract, &QPushButton::clicked, this, &CreditPanel::chooseContract);
}

void CreditPanel::setAccounts(const QStringList& accounts)
{
    auto* cellTable = m_table->findChild<WQ::CMultiParamsTable*>();
    if (!cellTable)
        return;
    QVector<QVariant> values;
    for (const QString& account : accounts)
        values << account;
    m_account->setText(accounts.value(0));
    hostCall(*cellTable, calls::kResetComboData, kAccountRow, accounts, values, accounts.isEmpty() ? -1 : 0);
    showAnswers();
}

void CreditPanel::setOperation(int operation)
{
    loadParam(creditParam(operation));
}

void CreditPanel::loadParam(const QString& text)
{
    m_operation->setValue(text.section(QLatin1Char('+'), 0, 0).toInt());
    m_param->setText(text);
    m_param->setCursorPosition(0);
    applyParam(text);
}

void CreditPanel::applyParam(const QString& text)
{
    hostCall(*m_table, calls::kSetCreditParam, text);
    fitTable();
    showAnswers();
}

void CreditPanel::chooseContract()
{
    const auto contract = sampleContract();
    hostCall(*m_table, calls::kSetCreditContract, contract, QString::number(contract->unrepaidVolume), false);
    showAnswers();
}

void CreditPanel::showAnswers()
{
    m_answers->setText(translated(QT_TRANSLATE_NOOP("workbench", "Account %1 · code %2"))
                           .arg(m_table->getSelectAccount(), m_table->getCurrentCode()));
    m_answer->setText(m_table->param());
    m_answer->setCursorPosition(0);
    m_answer->setToolTip(m_answer->text());
}

void CreditPanel::fitTable()
{
    const int width = WQ::CUiResource::instance()->getSize(QStringLiteral("tc_siz_operation_panel_param_table_width"));
    m_table->setFixedSize(width, m_table->realHeight());
}

TC::CCreditParamTable* CreditPanel::table() const
{
    return m_table;
}

void CreditPanel::scaleTable()
{
    hostCall(*m_table, calls::kScaleCredit);
    fitTable();
}

} // namespace workbench
