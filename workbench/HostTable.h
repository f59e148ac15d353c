#pragma once

#include <QTableView>

#include <functional>

namespace workbench {

/// A read-only list of the host: whole rows, flat, copied from, as dense as its font.
class HostTable : public QTableView
{
    Q_OBJECT
public:
    explicit HostTable(QWidget* parent = nullptr);

    /// Called whenever the columns should be fitted to the font anew.
    void setFitColumns(std::function<void()> fit);

    /// Fits rows and columns to the font.
    void fit();

Q_SIGNALS:
    /// A person asked for a copy of the selected rows.
    void copyRequested();

    /// A person pressed Enter on a row.
    void enterPressed(const QModelIndex& index);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    std::function<void()> m_fitColumns;
};

} // namespace workbench
