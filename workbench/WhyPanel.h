#pragma once

#include <QPointer>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;

namespace TC {
class COrderParamBaseTable;
}

namespace workbench {

class HostTable;
class LanguageTexts;
class TableBench;
class WhyModel;

/// Says why a cell of the order panel is shown or not: the cell of its current row, or any other one, shown or not.
class WhyPanel : public QWidget
{
    Q_OBJECT
public:
    explicit WhyPanel(TableBench& bench, QWidget* parent = nullptr);

    /// Explains a cell until another row of the panel becomes the current one, if rows are followed.
    void choose(int cell);

    /// Reads the table again, at once when the panel is seen and else when it will be.
    void refresh();

    int cell() const;
    WhyModel* model() const;

    /// The explanation as text, a line a rule, fields between tabs.
    QString text() const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void createBar();
    void createList();
    void setTable(TC::COrderParamBaseTable* table);
    void followRow(int row);
    void listCells();
    void explain();

    QPointer<TC::COrderParamBaseTable> m_table;
    int m_cell;
    WhyModel* m_model;
    QComboBox* m_choice;
    QCheckBox* m_follow;
    QLabel* m_answer;
    HostTable* m_view;
    LanguageTexts* m_texts;
};

} // namespace workbench
