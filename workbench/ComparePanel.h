#pragma once

#include "workbench/CompareCapture.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QSortFilterProxyModel;
class QVBoxLayout;

namespace workbench {

class CompareModel;
class CompareSide;
class HostTable;
class LanguageTexts;
class TableBench;

/// Two tables side by side: what each is made of, and what differs between them.
class ComparePanel : public QWidget
{
    Q_OBJECT
public:
    explicit ComparePanel(TableBench& bench, QWidget* parent = nullptr);

    /// Compares these two from now on.
    void compare(const CompareSetup& left, const CompareSetup& right);

    /// Compares the order panel with itself, the keyboard in the right one's broker type: what differs afterwards is
    /// what the person makes of it.
    void compareWithPanel();

    CompareModel* model() const;

    /// The rows that are shown, a line of titles first: commas for a name that ends in ".csv", else tabs. What went
    /// wrong, empty for nothing.
    QString exportTo(const QString& path) const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void createForm();
    void createBar(QVBoxLayout& column);
    void createList(QVBoxLayout& column);
    void listenTo(CompareSide* side);
    void refresh();
    void showCount();
    void fitColumns();
    void copy() const;
    void askAndExport();
    std::vector<QStringList> shownLines() const;

    TableBench& m_bench;
    LanguageTexts* m_texts;
    CompareModel* m_model;
    QSortFilterProxyModel* m_filtered;
    CompareSide* m_left;
    CompareSide* m_right;
    QCheckBox* m_differencesOnly;
    QLabel* m_count;
    HostTable* m_view;
};

} // namespace workbench
