#pragma once

#include "workbench/PanelHost.h"

#include <QStringList>

class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace TC {
class CCreditParamTable;
}

namespace workbench {

class LanguageTexts;
class NumberCombo;

/// The credit table with what a host does to it: operation, account, code, contract and the parameter string.
class CreditPanel : public PanelHost
{
    Q_OBJECT
public:
    /// The table is made here, so the recorder comes along; it may be null.
    explicit CreditPanel(Recorder* recorder = nullptr, QWidget* parent = nullptr);

    /// Offers the credit accounts; the table itself knows none.
    void setAccounts(const QStringList& accounts);

    /// Lays the table out for that operation with remembered figures.
    void setOperation(int operation);

    /// Hands a parameter string to the table, as a person does who enters it here.
    void loadParam(const QString& text);

    TC::CCreditParamTable* table() const;

    /// Hands a new UI scale to the table: only its owner does that.
    void scaleTable();

private:
    TC::CCreditParamTable* makeTable(Recorder* recorder);
    QPushButton* addEntry(QFormLayout* form, QLineEdit* edit, const char* label, const char* button);
    void createForm(QFormLayout* form);
    void applyParam(const QString& text);
    void chooseContract();
    void showAnswers();
    void fitTable();

    LanguageTexts* m_texts;
    TC::CCreditParamTable* m_table;
    NumberCombo* m_operation;
    QLineEdit* m_account;
    QLineEdit* m_code;
    QLineEdit* m_param;
    QLabel* m_answers;
    QLineEdit* m_answer; ///< the parameter string
};

/// A parameter string that chooses the operation and remembers a value for each row of it.
QString creditParam(int operation);

} // namespace workbench
