#pragma once

#include <WQ/WqExport.h>

namespace WQ {

/// Registered with the UI resource service for as long as it lives, and told of changes of theme and scale.
class WQ_EXPORT CUiResourceChangeHandler
{
public:
    CUiResourceChangeHandler();
    CUiResourceChangeHandler(const CUiResourceChangeHandler&) = delete;
    CUiResourceChangeHandler& operator=(const CUiResourceChangeHandler&) = delete;
    virtual ~CUiResourceChangeHandler();

    /// The theme is another one: colours and images have changed. This one does nothing.
    virtual void themeChanged();

    /// The UI scale is another one: sizes and fonts have changed. This one does nothing.
    virtual void scaleChanged();
};

} // namespace WQ
