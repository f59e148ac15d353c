#pragma once

#include <WQ/WqExport.h>

#include <QString>
#include <QTime>

#include <optional>

/// Times of day and lengths of time as a person types them.
namespace WQ::times {

constexpr int kSecondsPerDay = 24 * 60 * 60;

/// "H:MM", "HH:MM", "HH:MM:SS", "HHMM" or "HHMMSS", with ASCII or full-width digits and colons, as seconds up to a
/// whole day. Nothing when it is something else.
WQ_EXPORT std::optional<int> typedSeconds(const QString& text);

/// The same as a time of day: 24:00 is none.
WQ_EXPORT std::optional<QTime> typedTime(const QString& text);

/// "HH:MM:SS" of 0 to a day's seconds; others are bounded.
WQ_EXPORT QString secondsText(int seconds);

/// Hours, minutes and seconds of a text as secondsText() writes it.
struct Section
{
    int start; ///< where it stands in the text
    int length;
    int seconds; ///< what one of it counts
};

/// The section in which a cursor stands.
WQ_EXPORT Section sectionAt(const QString& text, int cursor);

} // namespace WQ::times
