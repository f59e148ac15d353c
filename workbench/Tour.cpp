#include "workbench/Tour.h"

#include "workbench/Appearance.h"
#include "workbench/Language.h"
#include "workbench/Snapshot.h"
#include "workbench/TourStages.h"

#include "reference/services/ServiceControl.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QWidget>

namespace workbench {

namespace {

/// Monday, 2024-05-20, 09:30 in Shanghai.
constexpr qint64 kTourClock = 1716168600;

/// Writes the pictures of one theme at one scale.
class Photographer
{
public:
    Photographer(const TourRequest& request, QString suffix, TourResult& result)
        : m_request(request)
        , m_suffix(std::move(suffix))
        , m_result(result)
    {
    }

    void takeAll()
    {
        for (const PanelStop& stop : panelStops())
            take(stop.name, [&stop] { return stagePanel(stop); });
        for (const TaskStop& stop : taskStops())
            take(stop.name, [&stop] { return stageTask(stop); });
        take("basket", stageBasket);
        for (const CreditStop& stop : creditStops())
            take(stop.name, [&stop] { return stageCredit(stop); });
        for (const WindowStop& stop : windowStops())
            take(stop.name, [this, &stop] { return stageWindow(stop, m_request.data); });
    }

private:
    template <class MakeStage>
    void take(const char* name, MakeStage makeStage)
    {
        if (!m_result.error.isEmpty())
            return;
        const Stage stage = makeStage();
        const QString file = QLatin1String(name) + m_suffix;
        const QString path = QDir(m_request.directory).filePath(file);
        if (snapshot(*stage.window, stage.pixelRatio).save(path))
            m_result.files << path;
        else
            m_result.error = QCoreApplication::translate("workbench", "Cannot write %1.").arg(path);
    }

    const TourRequest& m_request;
    QString m_suffix;
    TourResult& m_result;
};

} // namespace

TourResult writeTour(const TourRequest& request)
{
    TourResult result;
    if (!QDir().mkpath(request.directory)) {
        result.error = QCoreApplication::translate("workbench", "Cannot make the folder %1.").arg(request.directory);
        return result;
    }
    QApplication::setCursorFlashTime(0);
    reference::freezeClock(kTourClock);
    reference::setClientMode(0);
    reference::setModules({QStringLiteral("mdl_order/mdl_order_command_remark")});
    for (const QString& theme : request.themes) {
        setTheme(theme);
        for (const double scale : request.scales) {
            setScale(scale);
            setLanguage(request.language);
            const QString suffix = QStringLiteral("-%1-%2.png").arg(theme).arg(scale, 0, 'f', 2);
            Photographer(request, suffix, result).takeAll();
        }
    }
    return result;
}

} // namespace workbench
