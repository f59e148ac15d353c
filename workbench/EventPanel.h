#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QModelIndex;
class QSortFilterProxyModel;

namespace workbench {

class EventLogModel;
class HostTable;
class LanguageTexts;

/// The list of the events that arrived, with filter, pause, clear and copy.
class EventPanel : public QWidget
{
    Q_OBJECT
public:
    explicit EventPanel(QWidget* parent = nullptr);

    /// Takes an event over, unless the list is paused. Safe while the sender is being deleted.
    void add(int event, int a, int b, const QString& text, const void* payload);

    EventLogModel* model() const;

    void clear();

    /// Puts the selected rows, or all shown ones, on the clipboard as tab-separated text.
    void copy();

    void focusFilter();

Q_SIGNALS:
    /// A person wants to see the cell that an event came from.
    void cellWanted(int cell);

private:
    void askForCell(const QModelIndex& index);
    void createView();
    void createBar();
    void showCount();

    EventLogModel* m_model;
    QSortFilterProxyModel* m_filtered;
    HostTable* m_view;
    QLineEdit* m_filter;
    QCheckBox* m_pause;
    QLabel* m_count;
    LanguageTexts* m_texts;
};

} // namespace workbench
