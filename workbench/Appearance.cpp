#include "workbench/Appearance.h"

#include "workbench/FlatStyle.h"

#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QApplication>
#include <QPalette>

#include <array>

namespace workbench {

namespace {

namespace keys = WQ::keys;

struct RoleRow
{
    QPalette::ColorRole role;
    const QString& normal;
    const QString& disabled;
};

// clang-format off
const std::array kRoles = {
    RoleRow{QPalette::Window,          keys::kWindow,    keys::kWindow},
    RoleRow{QPalette::WindowText,      keys::kValue,     keys::kUnit},
    RoleRow{QPalette::Base,            keys::kRow,       keys::kWindow},
    RoleRow{QPalette::AlternateBase,   keys::kRowMouse,  keys::kRow},
    RoleRow{QPalette::Text,            keys::kValue,     keys::kUnit},
    RoleRow{QPalette::PlaceholderText, keys::kUnit,      keys::kUnit},
    RoleRow{QPalette::Button,          keys::kRow,       keys::kWindow},
    RoleRow{QPalette::ButtonText,      keys::kValue,     keys::kUnit},
    RoleRow{QPalette::BrightText,      keys::kCheckMark, keys::kUnit},
    RoleRow{QPalette::Highlight,       keys::kRowFocus,  keys::kRowMouse},
    RoleRow{QPalette::HighlightedText, keys::kValue,     keys::kUnit},
    RoleRow{QPalette::ToolTipBase,     keys::kRow,       keys::kRow},
    RoleRow{QPalette::ToolTipText,     keys::kValue,     keys::kUnit},
    RoleRow{QPalette::Link,            keys::kAccent,    keys::kUnit},
    RoleRow{QPalette::LinkVisited,     keys::kAccent,    keys::kUnit},
    RoleRow{QPalette::Light,           keys::kRowMouse,  keys::kRowMouse},
    RoleRow{QPalette::Midlight,        keys::kRow,       keys::kRow},
    RoleRow{QPalette::Mid,             keys::kSeparator, keys::kSeparator},
    RoleRow{QPalette::Dark,            keys::kSeparator, keys::kSeparator},
    RoleRow{QPalette::Shadow,          keys::kSeparator, keys::kSeparator},
};
// clang-format on

QPalette themePalette()
{
    QPalette palette;
    for (const RoleRow& row : kRoles) {
        palette.setColor(row.role, WQ::resources::color(row.normal));
        palette.setColor(QPalette::Disabled, row.role, WQ::resources::color(row.disabled));
    }
    return palette;
}

} // namespace

void dressApplication()
{
    QApplication::setStyle(new FlatStyle);
    QApplication::setPalette(themePalette());
    QApplication::setFont(WQ::resources::font(keys::kTextFont, WQ::resources::scale()));
}

bool setTheme(const QString& name)
{
    if (!WQ::resources::setTheme(name))
        return false;
    QApplication::setPalette(themePalette());
    return true;
}

void setScale(double scale)
{
    WQ::resources::setScale(scale);
    QApplication::setFont(WQ::resources::font(keys::kTextFont, WQ::resources::scale()));
}

} // namespace workbench
