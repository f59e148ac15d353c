#include <WQ/CBaseDialog.h>

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPalette>
#include <QPointer>

#include <initializer_list>

namespace WQ {

namespace {

// For what a host puts into a dialog that is not of the toolkit: lines, labels, plain buttons.
QPalette themePalette()
{
    QPalette palette;
    const auto give = [&palette](std::initializer_list<QPalette::ColorRole> roles, const QString& key) {
        for (QPalette::ColorRole role : roles)
            palette.setColor(role, resources::color(key));
    };
    give({QPalette::Window}, keys::kWindow);
    give({QPalette::Base, QPalette::AlternateBase}, keys::kInput);
    give({QPalette::Button}, keys::kRow);
    give({QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}, keys::kValue);
    give({QPalette::Light, QPalette::Midlight, QPalette::Mid, QPalette::Dark, QPalette::Shadow}, keys::kSeparator);
    give({QPalette::Highlight}, keys::kSelection);
    return palette;
}

} // namespace

// A dialog stays at scale 1 with all in it, labels of its host included.
CBaseDialog::CBaseDialog(QWidget* parent)
    : CEventWidgetT<QDialog>(parent)
{
    setPalette(themePalette());
    setFont(resources::font(keys::kTextFont, 1.0));
}

CBaseDialog::~CBaseDialog() = default;

bool CBaseDialog::handleEvent(int, int, int, QString, void*)
{
    return false;
}

void CBaseDialog::themeChanged()
{
    setPalette(themePalette());
    update();
}

void CBaseDialog::scaleChanged()
{
}

bool CBaseDialog::checkOK()
{
    return true;
}

void CBaseDialog::onOK()
{
    const QPointer<CBaseDialog> self(this);
    if (checkOK() && self)
        accept();
}

void CBaseDialog::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painting::fillRegion(painter, event->region(), resources::color(keys::kWindow));
}

} // namespace WQ
