#pragma once

#include "workbench/TableSetup.h"

#include <QPointer>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QLineEdit;

namespace TC {
class COrderParamBaseTable;
}

namespace workbench {

class FlagsEditor;
class LanguageTexts;
class NumberCombo;

/// What a host calls on a live table: operation, order type, price, code, flags, expansion; and what the table answers.
class OrderControls : public QWidget
{
    Q_OBJECT
public:
    explicit OrderControls(QWidget* parent = nullptr);

    /// The table that the controls act on; it may go at any time.
    void setTable(TC::COrderParamBaseTable* table);

    /// What was chosen here, for the next table. A new one starts as constructed until a person chooses something.
    TableDrive drive() const;

    /// Shows what was chosen in an earlier run, for the next table, without announcing it.
    void setDrive(const TableDrive& drive);

    /// As if a person had entered it here.
    void chooseCode(const QString& code);
    void chooseOperation(int operationType);

    /// Reads the table's state again.
    void refresh();

Q_SIGNALS:
    /// A call was made on the table.
    void tableDriven();

private:
    NumberCombo* addNumber(const char* label, NumberCombo* combo);
    QCheckBox* addCheck(const char* label, bool checked);
    void addPriceType();
    void addCode();
    void addPrice();
    void addAnswers();
    void connectControls();

    QPointer<TC::COrderParamBaseTable> m_table;
    TableDrive m_drive;
    LanguageTexts* m_texts;
    QFormLayout* m_form;
    NumberCombo* m_orderType;
    NumberCombo* m_operation;
    QCheckBox* m_expanded;
    QCheckBox* m_enabled;
    QComboBox* m_priceType;
    QLineEdit* m_code;
    QDoubleSpinBox* m_price;
    FlagsEditor* m_flags;
    QLabel* m_answers;
};

} // namespace workbench
