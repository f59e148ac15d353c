#pragma once

#include "workbench/HostDirectory.h"

#include <QWidget>

#include <vector>

class QComboBox;
class QCompleter;
class QLabel;
class QLineEdit;

namespace workbench {

class LanguageTexts;
class NumberCombo;

/// What stands over the cells of an order panel: the instrument by code and name, the account, the operation.
class OrderHeader : public QWidget
{
    Q_OBJECT
public:
    explicit OrderHeader(QWidget* parent = nullptr);

    void setInstruments(std::vector<Instrument> instruments);
    void setAccounts(std::vector<HostAccount> accounts);

    /// @name What is in force, without announcing it
    /// @{
    void showInstrument(const QString& code);
    void showOperation(int operationType);

    /// An account of another broker type gives way to the first one of this type, or to none.
    void showBroker(int brokerType);
    void showAccount(const QString& key);
    /// @}

    Instrument instrument() const;

    /// The key of the account; empty for none.
    QString account() const;

    /// Puts the keyboard into the code, which is selected.
    void focusCode();

Q_SIGNALS:
    /// A person chose an instrument: one of the list, or any code.
    void instrumentChosen(const QString& code);
    void accountChosen(const QString& key, int brokerType);
    void operationChosen(int operationType);

private:
    void createFields();
    void nameFields();
    void listAccounts();
    void takeCode();
    void choose(const QString& code);
    int brokerTypeAt(int index) const;

    std::vector<Instrument> m_instruments;
    std::vector<HostAccount> m_accounts;
    QString m_chosen; ///< the code in force; the field may hold what is being typed
    LanguageTexts* m_texts;
    QLineEdit* m_code;
    QCompleter* m_completer;
    QLabel* m_name;
    QComboBox* m_account;
    NumberCombo* m_operation;
};

} // namespace workbench
