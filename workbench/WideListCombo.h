#pragma once

#include <QComboBox>

namespace workbench {

/// A combo whose list is as wide as its entries, however narrow the combo is.
class WideListCombo : public QComboBox
{
public:
    using QComboBox::QComboBox;

    void showPopup() override;
};

} // namespace workbench
