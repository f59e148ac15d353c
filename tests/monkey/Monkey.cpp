#include "monkey/Monkey.h"

#include "monkey/Checks.h"
#include "monkey/Input.h"
#include "monkey/Warnings.h"

#include "replay/Expectation.h"
#include "replay/Script.h"

#include <QApplication>

#include <algorithm>
#include <fstream>
#include <malloc.h>
#include <sstream>

namespace monkey {

namespace {

constexpr double kScales[] = {1.0, 1.0, 1.25, 1.5, 2.0, 3.0};
constexpr const char* kThemes[] = {"dark", "light"};
constexpr int kSwitchWindow = 12; // one action in so many turns to another window
constexpr int kStaysDisabled = 4; // actions, on average
constexpr int kFirstShare = 10;   // of the episodes, until caches are full

class Monkey
{
public:
    explicit Monkey(const RunSetup& setup)
        : m_setup(setup)
        , m_random(setup.seed)
        , m_stage(m_random)
        , m_input(m_random, [this](const QString& what) { say(what); })
    {
    }

    RunReport run()
    {
        const int episodes =
            static_cast<int>((m_setup.actions + m_setup.actionsAnEpisode - 1) / m_setup.actionsAnEpisode);
        const int topLevels = QApplication::topLevelWidgets().size();
        std::size_t memory = 0;
        for (int episode = 0; episode < episodes && m_report.failure.isEmpty(); ++episode) {
            runEpisode(episode);
            if (m_report.failure.isEmpty())
                m_report.failure = leftOvers(topLevels);
            if (m_report.failure.isEmpty())
                m_stage.script().remove();
            if (episode == episodes / kFirstShare)
                memory = mallinfo2().uordblks;
        }
        m_report.grown = static_cast<long long>(mallinfo2().uordblks) - static_cast<long long>(memory);
        m_report.warnings = m_warnings.count();
        m_report.deeds = m_stage.deeds();
        return m_report;
    }

private:
    struct Deed
    {
        int weight;
        void (Monkey::*act)();
    };

    static const std::vector<Deed>& deeds();

    void say(const QString& what)
    {
        m_stage.script().comment(QStringLiteral("%1: %2").arg(m_report.actions).arg(what));
    }

    void runEpisode(int episode)
    {
        m_stage.open(QStringLiteral("%1/monkey-seed%2-episode%3.jsonl")
                         .arg(m_setup.scriptFolder, QString::number(m_setup.seed), QString::number(episode)));
        m_slot = &m_random.weighted(Stage::slotRows());
        const long long last = std::min(m_setup.actions, m_report.actions + m_setup.actionsAnEpisode);
        while (m_report.actions < last && m_report.failure.isEmpty()) {
            (this->*m_random.weighted(deeds()).act)();
            m_stage.settle();
            ++m_report.actions;
            m_report.failure = wrong();
        }
        if (m_report.failure.isEmpty())
            showAll();
        m_report.states = m_stage.states();
        if (!m_report.failure.isEmpty())
            m_report.script = m_stage.script().path();
        Input::closePopups();
        m_stage.close();
        if (m_report.failure.isEmpty())
            replayEpisode();
    }

    // No command hides a window, and what is hidden is laid out when it is shown again.
    void showAll()
    {
        for (const Stage::Slot& slot : Stage::slotRows())
            m_stage.show(slot);
    }

    QString wrong()
    {
        if (m_warnings.count() > 0)
            return QStringLiteral("warning: ") + m_warnings.first();
        const QString complaint = firstComplaint(m_stage);
        return complaint.isEmpty() && m_setup.alsoCheck ? m_setup.alsoCheck(m_stage, m_report.actions) : complaint;
    }

    void replayEpisode()
    {
        std::ifstream script(m_stage.script().path().toStdString());
        std::ostringstream answers;
        replay::runScript(m_stage.session(), script, answers);
        ++m_report.replayed;
        if (!replay::differences(m_report.states, m_stage.states()).empty())
            ++m_report.replayedApart;
        m_stage.close();
    }

    void touch()
    {
        if (m_random.oneIn(kSwitchWindow))
            turn();
        QWidget* window = m_stage.windowOf(*m_slot);
        if (window && !window->isVisible())
            m_stage.show(*m_slot);
        if (!m_stage.object(*m_slot)->isEnabled() && m_random.oneIn(kStaysDisabled))
            enableOrDisable();
        if (window && window->isVisible())
            m_input.act(window);
    }

    void turn()
    {
        m_slot = &m_random.weighted(Stage::slotRows());
        say(QStringLiteral("turns to %1").arg(QLatin1String(m_slot->name)));
        if (QWidget* window = m_stage.windowOf(*m_slot))
            QApplication::setActiveWindow(window);
    }

    void call()
    {
        const Stage::Slot& slot = m_random.oneIn(2) ? *m_slot : m_random.pick(Stage::slotRows());
        m_stage.run(randomCall(m_random, slot.family, slot.name));
    }

    void service()
    {
        m_stage.run(randomService(m_random));
    }

    void theme()
    {
        m_stage.run({{"do", "theme"}, {"name", m_random.pick(kThemes)}});
    }

    // The owner of a table tells it of a new scale.
    void scale()
    {
        m_stage.run({{"do", "scale"}, {"value", m_random.pick(kScales)}});
        for (const Stage::Slot& slot : Stage::slotRows()) {
            if (slot.family != Family::TaskDialog && slot.family != Family::BasketDialog)
                m_stage.run({{"do", "call"}, {"on", slot.name}, {"op", "handleScaleChanged"}});
        }
    }

    void resize()
    {
        m_stage.run(randomSize(m_random, m_slot->name));
    }

    // A dialog is closed, which deletes it.
    void hideOrShow()
    {
        QWidget* window = m_stage.windowOf(*m_slot);
        say(QStringLiteral("hides, shows or closes"));
        if (!window)
            return;
        if (!window->isVisible())
            m_stage.show(*m_slot);
        else if (window == m_stage.object(*m_slot))
            window->close();
        else
            window->hide();
    }

    void enableOrDisable()
    {
        QWidget* object = m_stage.object(*m_slot);
        say(QStringLiteral("enables or disables"));
        if (object)
            object->setEnabled(!object->isEnabled() || m_random.oneIn(3));
    }

    void reopen()
    {
        m_stage.reopen(*m_slot);
    }

    const RunSetup& m_setup;
    Warnings m_warnings;
    Random m_random;
    Stage m_stage;
    Input m_input;
    RunReport m_report;
    const Stage::Slot* m_slot = nullptr; // whose window is being used
};

// clang-format off
const std::vector<Monkey::Deed>& Monkey::deeds()
{
    static const std::vector<Deed> rows = {
        {72, &Monkey::touch},
        {16, &Monkey::call},
        { 1, &Monkey::service},
        { 1, &Monkey::theme},
        { 1, &Monkey::scale},
        { 3, &Monkey::resize},
        { 2, &Monkey::hideOrShow},
        { 2, &Monkey::enableOrDisable},
        { 1, &Monkey::reopen},
    };
    return rows;
}
// clang-format on

} // namespace

RunReport run(const RunSetup& setup)
{
    return Monkey(setup).run();
}

} // namespace monkey
