#pragma once

#include <QString>

/// The jobs that every contender does, each on a stage of its own. Google Benchmark runs them.
namespace bench {

void registerPanelJobs();

/// The contenders hold the same rows and hide and show the same ones, or their times say nothing. Answers what differs,
/// an empty text when nothing does.
QString differencesOfContenders();

/// A style sheet as hosts set it for the whole application: fonts, frames and colours of all common widgets.
QString applicationStyleSheet();

} // namespace bench
