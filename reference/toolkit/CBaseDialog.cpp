#include <WQ/CBaseDialog.h>

#include "reference/toolkit/Resources.h"
#include "reference/toolkit/ThemeKeys.h"

#include <QPainter>
#include <QPointer>

namespace WQ {

CBaseDialog::CBaseDialog(QWidget* parent)
    : CEventWidgetT<QDialog>(parent)
{
}

CBaseDialog::~CBaseDialog() = default;

bool CBaseDialog::handleEvent(int, int, int, QString, void*)
{
    return false;
}

void CBaseDialog::themeChanged()
{
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

void CBaseDialog::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), resources::color(keys::kWindow));
}

} // namespace WQ
