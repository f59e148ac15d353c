#pragma once

#include "WindowHands.h"

#include <QRandomGenerator>

namespace person {

/// A person at work in all parts of the window, by mouse and keys: a walk that is always the same, and walks of chance.
class WindowWalk : public WindowHands
{
public:
    using WindowHands::WindowHands;

    /// Every kind of act once or more, in every part.
    void walk();

    /// So many acts of chance; the same seed does the same.
    void wander(quint32 seed, int acts);

private:
    struct Act
    {
        int weight;
        void (WindowWalk::*act)();
    };
    static const std::vector<Act>& acts();

    void workInPanelCells();
    void workInModes();
    void workInHostCalls();
    void workInQuote();
    void workInTasks();
    void workInCredit();
    void workInServices();
    void workInSetup();
    void workInLook();
    void workInFilter();
    void editByKind(const CellHand& hand, int id);
    void pasteAndRestore(const CellHand& hand);

    /// @name Of chance
    /// @{
    int below(int count);
    QString anyNumber();
    int anyModeButton();
    void anyEdit(const CellHand& hand);
    void panelEdit();
    void panelFilter();
    void panelMode();
    void panelDoubleClick();
    void anyHostCall();
    void anyQuote();
    void anyTask();
    void anyDialogAct();
    void anyCredit();
    void anyService();
    void anySetup();
    void anyLook();
    /// @}

    QRandomGenerator m_random;
};

} // namespace person
