#pragma once

#include <QListWidget>

namespace workbench {

/// The cells that a host allows, as a checklist of the flags' bits.
class FlagsEditor : public QListWidget
{
    Q_OBJECT
public:
    explicit FlagsEditor(QWidget* parent = nullptr);

    int flags() const;

    /// Shows the flags without announcing them.
    void setFlags(int flags);

Q_SIGNALS:
    /// A person ticked or unticked a cell.
    void flagsChanged(int flags);
};

} // namespace workbench
