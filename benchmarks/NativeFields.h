#pragma once

#include "benchmarks/PanelContent.h"

#include <QWidget>

class QComboBox;
class QDoubleSpinBox;

namespace bench {

/// One row's editing widgets, Qt's own, and what of them is changed later.
struct NativeField
{
    QWidget* field = nullptr;         ///< all of it
    QComboBox* choice = nullptr;      ///< of a choice
    QDoubleSpinBox* number = nullptr; ///< of a number, with or without unit
    QComboBox* units = nullptr;       ///< of a number whose unit is chosen
};

NativeField makeNativeField(const Row& row);

/// What a switch changes beside showing and hiding.
void switchFields(const std::vector<NativeField>& fields, const Mode& mode);

} // namespace bench
