#pragma once

#include <QFrame>

#include <functional>
#include <vector>

class QLineEdit;
class QStandardItemModel;

namespace workbench {

class HostTable;

/// Something that can be found and done.
struct FinderEntry
{
    QString text;
    QString keys; ///< that lead there without looking; may be empty
    std::function<void()> run;
};

/// A list of everything that can be done, found by typing: it opens over the window, Enter does it, Esc leaves it.
class Finder : public QFrame
{
    Q_OBJECT
public:
    explicit Finder(QWidget* window);

    /// Opens with all entries.
    void open(std::vector<FinderEntry> entries);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void createList();
    void search(const QString& text);
    void run(int row);

    std::vector<FinderEntry> m_entries;
    std::vector<std::size_t> m_found; ///< the entries in the list
    QLineEdit* m_text;
    QStandardItemModel* m_model;
    HostTable* m_list;
};

} // namespace workbench
