#pragma once

#include <WQ/WqExport.h>

#include <QColor>
#include <QString>

namespace WQ {

/// The UI resource service: sizes and colours by key, at the current theme and UI scale.
class WQ_EXPORT CUiResource
{
public:
    /// The one instance of the process; lives until the program ends.
    static CUiResource* instance();

    CUiResource(const CUiResource&) = delete;
    CUiResource& operator=(const CUiResource&) = delete;

    /// The size of @p key in pixels at the current UI scale. An unknown key answers a visible fallback and is reported
    /// once.
    int getSize(const QString& key) const;

    /// The colour of @p key in the current theme. The pointer stays valid as long as the program runs and what it
    /// points at follows the theme. An unknown key answers a visible fallback and is reported once; never null.
    const QColor* getColor(const QString& key) const;

    /// The UI scale, 1.0 to 3.0. The screen's pixel ratio comes on top of it.
    double getUIScale() const;

private:
    CUiResource();
    ~CUiResource();
};

} // namespace WQ
