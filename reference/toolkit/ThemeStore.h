#pragma once

#include "reference/services/LoadReport.h"
#include "reference/toolkit/ThemeReader.h"

#include <QSet>

#include <unordered_map>

namespace WQ {

/// The theme in use and what all themes share. Colours keep their addresses when the theme changes.
class ThemeStore
{
public:
    /// The store of the process. It is never destroyed, since widgets may ask until the very end.
    static ThemeStore& instance();

    const QColor& color(const QString& key);
    double size(const QString& key);
    FontRole font(const QString& key, bool& known);

    /// The file of the image, empty when the key is unknown.
    QString imageFile(const QString& key);

    const QStringList& families() const
    {
        return m_metrics.families;
    }

    QString theme() const
    {
        return m_theme;
    }

    QStringList themes() const;
    bool setTheme(const QString& name);
    void addFolder(const QString& folder);

private:
    ThemeStore();
    void reportUnknown(const char* kind, const QString& key);
    QString fileOf(const QString& theme) const;
    std::optional<ThemeColors> readTheme(const QString& fileName) const;
    void checkKeys(const QByteArray& file, const QString& fileName, ThemeColors& colors,
                   reference::LoadReport& report) const;

    QStringList m_folders;
    QString m_theme;
    ThemeMetrics m_metrics;
    std::unordered_map<QString, QColor> m_colors;
    QSet<QString> m_reported;
};

} // namespace WQ
