#include <WQ/CCustomDialog.h>

#include "reference/toolkit/Painting.h"
#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QPainter>

namespace WQ {

CCustomDialog::CCustomDialog(QWidget* parent)
    : CBaseDialog(parent)
{
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
}

CCustomDialog::~CCustomDialog() = default;

void CCustomDialog::paintEvent(QPaintEvent* event)
{
    CBaseDialog::paintEvent(event);
    QPainter painter(this);
    painting::drawOuterFrame(painter, rect(), resources::color(keys::kSeparator));
}

} // namespace WQ
