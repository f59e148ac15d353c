#include <WQ/CUiResource.h>

#include "reference/toolkit/Resources.h"

namespace WQ {

CUiResource::CUiResource() = default;

CUiResource::~CUiResource() = default;

// Never destroyed: widgets may ask until the very end of the program.
CUiResource* CUiResource::instance()
{
    static CUiResource* const resource = new CUiResource;
    return resource;
}

int CUiResource::getSize(const QString& key) const
{
    return resources::size(key, resources::scale());
}

const QColor* CUiResource::getColor(const QString& key) const
{
    return &resources::color(key);
}

double CUiResource::getUIScale() const
{
    return resources::scale();
}

} // namespace WQ
