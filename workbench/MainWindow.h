#pragma once

#include "workbench/HostData.h"
#include "workbench/StateFile.h"
#include "workbench/TableMemory.h"

#include <QMainWindow>

#include <vector>

class QAction;
class QDockWidget;
class QLabel;
class QMenu;

namespace workbench {

class ComparePanel;
class CreditPanel;
class EventPanel;
class Finder;
class HostForm;
class LanguageTexts;
class LookForm;
class OrderControls;
class OrderHeader;
class PanelHost;
class QuoteLadder;
class QuotePanel;
class Recorder;
class RecorderPanel;
class SetupForm;
class StateKeeper;
class TableBench;
class TaskPanel;
class TicketPanel;
class WhyPanel;

/// Theme, UI scale and language of the last run; empty, or 1.0, when there was none.
struct SavedLook
{
    QString theme;
    double scale;
    QString language;
};
SavedLook savedLook();

/// The workbench: the order panel in the middle, what it is made of at its left, what a host does to it and what it
/// answers at its right.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit MainWindow(HostData hostData, QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Makes the order panel anew from the form, as constructed: what is kept of that table is forgotten. Safe from
    /// inside an event of the table that it replaces.
    void rebuildTable();

    /// Take effect at once, for every widget.
    void chooseTheme(const QString& name);
    void chooseScale(double scale);
    void chooseLanguage(const QString& language);

    /// Opens the list of everything that can be done, to be found by typing.
    void find();

    /// Brings back what was committed and chosen in the last run, and keeps from now on what is committed and chosen in
    /// this one. Modules, client mode and clock are left as they are when the host was told where to read them.
    enum class Services { Kept, AsTold };
    void loadState(Services services = Services::Kept);

    TableBench* bench() const;
    EventPanel* events() const;
    SetupForm* form() const;
    CreditPanel* credit() const;
    QuoteLadder* ladder() const;
    QuotePanel* quotePanel() const;
    TicketPanel* ticket() const;
    Recorder* recorder() const;
    RecorderPanel* recorderPanel() const;

protected:
    void closeEvent(QCloseEvent* event) override;

    /// A part under another one's tab counts as visible to Qt, and Tab would go through it where nobody sees it.
    bool focusNextPrevChild(bool next) override;

private:
    /// A part of the window: the name that its place is kept under, its title, and the keys that lead to it.
    struct DockRow
    {
        const char* name;
        const char* title;
        const char* keys;
        Qt::DockWidgetArea area;
        const char* tabbedWith; ///< an earlier row's name; empty for a place of its own
        QWidget* (*content)(MainWindow& window);
    };

    void createCentre();
    void createDocks();
    void arrangeParts();
    void scaleTitles();
    QWidget* createWhy();
    QWidget* createCompare();
    QWidget* createSetup();
    static const std::vector<DockRow>& dockRows();
    void addDock(const DockRow& row);
    QDockWidget* dock(const char* name) const;
    static void goTo(QDockWidget* dock);
    void listenTo(PanelHost* host);
    void showTable();
    void sayChanges(const QString& text);
    void connectHost();
    void takeServices(const Json& services);
    void keepService(const char* name, Json value);
    Json collectState();
    void connectLadder();
    void readTable();
    void connectHeader();
    void takeAccount(int brokerType);
    void followConfiguration();

    /// @name What a person does with one key
    /// @{
    void goToCell(int cell);
    void explainCell();
    void compareWithPanel();
    void chooseNextTheme();
    void chooseNextLanguage();
    void showPanelAlone(bool alone);
    /// @}
    void onEvent(int event, int a, int b, const QString& text, void* payload);

    QMenu* addMenu(const char* title);
    QAction* addAction(QMenu* menu, const char* title, const QKeySequence& keys);
    void createMenus();
    void createTableMenu();
    void createViewMenu();
    void createPartsMenu(QMenu* view);
    void createThemeMenu(QMenu* view);
    void createScaleActions(QMenu* view);
    void createLanguageMenu(QMenu* view);
    void createEventMenu();
    void createRecordingMenu();
    void createHelpMenu();
    void createPanelActions(QMenu* menu);
    void tickChoices();
    void showProblem(const QString& problem);

    LanguageTexts* m_texts;
    Recorder* m_recorder;
    TableBench* m_bench;
    SetupForm* m_form;
    LookForm* m_look;
    HostForm* m_host;
    OrderControls* m_controls;
    OrderHeader* m_header;
    QLabel* m_changes; ///< what the last change of the set-up has made of the panel
    EventPanel* m_events;
    TaskPanel* m_tasks;
    CreditPanel* m_credit;
    QuotePanel* m_quotes;
    TicketPanel* m_ticket;
    RecorderPanel* m_recorderPanel;
    StateKeeper* m_keeper;
    TableMemory m_memory;
    Json m_services = Json::object(); ///< what a person chose of the services, in this run or an earlier one
    bool m_isKept = false;            ///< loadState() was called
    QStringList m_problems;
    QList<QDockWidget*> m_docks;
    WhyPanel* m_why = nullptr;
    ComparePanel* m_compare = nullptr;
    Finder* m_finder = nullptr;      ///< made when first asked for
    QAction* m_alone = nullptr;      ///< ticked while the parts are put away
    QByteArray m_partsBefore;        ///< where they stood then
    QList<QAction*> m_choiceActions; ///< themes and languages, ticked as they are in force
};

} // namespace workbench
