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
    /// @return null where a client has none
    static CUiResource* instance();

    CUiResource(const CUiResource&) = delete;
    CUiResource& operator=(const CUiResource&) = delete;

    /// A size at the current UI scale.
    /// @param key an unknown one answers a visible fallback and is reported once
    /// @return pixels
    int getSize(const QString& key) const;

    /// A colour in the current theme.
    /// @param key an unknown one answers a visible fallback and is reported once
    /// @return never null, valid as long as the program runs; what it points at follows the theme
    const QColor* getColor(const QString& key) const;

    /// The UI scale. The screen's pixel ratio comes on top of it.
    /// @return 1.0 to 3.0
    double getUIScale() const;

private:
    CUiResource();
    ~CUiResource();
};

} // namespace WQ
