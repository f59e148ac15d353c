#include "contract/recorder/CallLog.h"
#include "contract/recorder/State.h"

#include <WQ/CUiResource.h>
#include <WQ/CUiResourceChangeHandler.h>

namespace WQ {

using recorder::record;
using recorder::Resource;

CUiResource::CUiResource() = default;

CUiResource::~CUiResource() = default;

CUiResource* CUiResource::instance()
{
    static CUiResource resources;
    return &resources;
}

int CUiResource::getSize(const QString& key) const
{
    constexpr int kUsualSize = 50;
    record(Resource, QStringLiteral("resources.getSize"), key);
    return recorder::state().sizes.value(key, kUsualSize);
}

const QColor* CUiResource::getColor(const QString& key) const
{
    static const QColor color(Qt::darkCyan);
    record(Resource, QStringLiteral("resources.getColor"), key);
    return &color;
}

double CUiResource::getUIScale() const
{
    record(Resource, QStringLiteral("resources.getUIScale"));
    return recorder::state().scale;
}

CUiResourceChangeHandler::CUiResourceChangeHandler() = default;

CUiResourceChangeHandler::~CUiResourceChangeHandler() = default;

void CUiResourceChangeHandler::themeChanged()
{
}

void CUiResourceChangeHandler::scaleChanged()
{
}

} // namespace WQ
