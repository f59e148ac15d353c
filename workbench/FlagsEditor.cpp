#include "workbench/FlagsEditor.h"

#include "workbench/Vocabulary.h"

#include <OrderParamTable_mini/semantics/OrderVocabulary.h>

#include <QSignalBlocker>

namespace workbench {

namespace {

/// The library looks at the bits 0x1 to 0x8000000.
constexpr int kFlagBits = 28;

} // namespace

FlagsEditor::FlagsEditor(QWidget* parent)
    : QListWidget(parent)
{
    for (int bit = 0; bit < kFlagBits; ++bit) {
        const int flag = 1 << bit;
        const QString number = QStringLiteral("0x%1").arg(flag, 0, 16);
        auto* item = new QListWidgetItem(number + QStringLiteral("  ") + labelOf(cells(), flag), this);
        item->setData(Qt::UserRole, flag);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    setFlags(TC::kDefaultCellFlags);
    connect(this, &QListWidget::itemChanged, this, [this] { Q_EMIT flagsChanged(flags()); });
}

int FlagsEditor::flags() const
{
    int flags = 0;
    for (int i = 0; i < count(); ++i)
        if (item(i)->checkState() == Qt::Checked)
            flags |= item(i)->data(Qt::UserRole).toInt();
    return flags;
}

void FlagsEditor::setFlags(int flags)
{
    const QSignalBlocker quiet(this);
    for (int i = 0; i < count(); ++i) {
        const bool on = (flags & item(i)->data(Qt::UserRole).toInt()) != 0;
        item(i)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    }
    viewport()->update();
}

} // namespace workbench
