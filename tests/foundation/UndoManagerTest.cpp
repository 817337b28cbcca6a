#include "platform/foundation/UndoManager.h"

#include <gtest/gtest.h>

namespace {

/// Something with a value that is changed the way the program changes everything: the setter registers itself.
struct Knob {
    UndoManager& undo;
    int value = 0;

    void set(int newValue)
    {
        undo.registerUndoWithTarget(this, [this, old = value] { set(old); });
        value = newValue;
    }
};

TEST(UndoManager, EachChangeIsAStepThatUndoAndRedoWalkThrough)
{
    UndoManager undo;
    Knob knob{undo};
    knob.set(1);
    knob.set(2);
    undo.undo();
    EXPECT_EQ(knob.value, 1);
    undo.undo();
    EXPECT_EQ(knob.value, 0);
    EXPECT_FALSE(undo.canUndo());
    undo.undo(); // nothing left: harmless
    undo.redo();
    undo.redo();
    EXPECT_EQ(knob.value, 2);
    EXPECT_FALSE(undo.canRedo());
    undo.undo();
    EXPECT_EQ(knob.value, 1);

    knob.set(7);
    EXPECT_FALSE(undo.canRedo()) << "a new change starts a new future";
    undo.undo();
    EXPECT_EQ(knob.value, 1);
}

TEST(UndoManager, NamesFollowTheirStepBetweenTheStacks)
{
    UndoManager undo;
    Knob knob{undo};
    undo.setActionName("Nothing yet");
    EXPECT_EQ(undo.undoMenuItemTitle(), "Undo");
    knob.set(1);
    undo.setActionName("First");
    knob.set(2);
    undo.setActionName("Second");
    EXPECT_EQ(undo.undoMenuItemTitle(), "Undo Second");
    undo.undo();
    EXPECT_EQ(undo.undoActionName(), "First");
    EXPECT_EQ(undo.redoMenuItemTitle(), "Redo Second");
    undo.redo();
    EXPECT_EQ(undo.undoActionName(), "Second");
}

TEST(UndoManager, ListsTheNamesOfAllStepsNearestFirst)
{
    UndoManager undo;
    Knob knob{undo};
    EXPECT_EQ(undo.undoActionNames(), QStringList());
    for (const char* name : {"one", "", "three"}) {
        knob.set(knob.value + 1);
        undo.setActionName(name);
    }
    EXPECT_EQ(undo.undoActionNames(), QStringList({"three", "", "one"}));
    undo.undo();
    undo.undo();
    EXPECT_EQ(undo.undoActionNames(), QStringList({"one"}));
    EXPECT_EQ(undo.redoActionNames(), QStringList({"", "three"}));
    undo.beginUndoGrouping();
    knob.set(9);
    undo.setActionName("open group");
    EXPECT_EQ(undo.undoActionNames(), QStringList({"open group", "one"}));
    undo.endUndoGrouping();
    EXPECT_EQ(undo.undoActionNames(), QStringList({"open group", "one"}));
    EXPECT_TRUE(undo.redoActionNames().isEmpty());
}

TEST(UndoManager, ForgetsWhatIsOnlyTried)
{
    UndoManager undo;
    Knob knob{undo};
    knob.set(1);
    undo.setActionName("Set");
    undo.disableUndoRegistration();
    undo.disableUndoRegistration();
    knob.set(5);
    undo.enableUndoRegistration();
    knob.set(6);
    undo.setActionName("Try");
    undo.enableUndoRegistration();
    EXPECT_EQ(undo.undoActionName(), "Set");
    undo.undo();
    EXPECT_EQ(knob.value, 0);
    EXPECT_FALSE(undo.canUndo());
}

TEST(UndoManager, DropsTheActionsOfOneTargetFromBothStacks)
{
    UndoManager undo;
    Knob kept{undo}, dropped{undo};
    kept.set(1);
    dropped.set(1);
    kept.set(2);
    dropped.set(2);
    undo.undo();
    undo.undo(); // one of each on the redo stack
    undo.removeAllActionsWithTarget(&dropped);
    undo.redo();
    EXPECT_EQ(kept.value, 2);
    EXPECT_FALSE(undo.canRedo());
    undo.undo();
    undo.undo();
    EXPECT_EQ(kept.value, 0);
    EXPECT_FALSE(undo.canUndo());
    EXPECT_EQ(dropped.value, 1);
}

TEST(UndoManager, AnActionMayEmptyTheHistoryAndRegisterItsRedoWhileItRuns)
{
    UndoManager undo;
    Knob knob{undo};
    int mode = 0;
    std::function<void(int)> change = [&](int newMode) {
        undo.removeAllActionsWithTarget(&knob);
        undo.removeAllActionsWithTarget(&mode);
        undo.registerUndoWithTarget(&mode, [&, old = mode] { change(old); });
        mode = newMode;
    };
    knob.set(5);
    change(1);
    undo.undo();
    EXPECT_EQ(mode, 0);
    EXPECT_FALSE(undo.canUndo());
    ASSERT_TRUE(undo.canRedo());
    undo.redo();
    EXPECT_EQ(mode, 1);
    EXPECT_TRUE(undo.canUndo());
    EXPECT_EQ(knob.value, 5);
}

TEST(UndoManager, AStepThatTakesTimeRecordsUntilItIsClosed)
{
    UndoManager undo;
    Knob knob{undo};
    undo.keepStepOpen(); // no undo is running: nothing
    undo.registerUndoWithTarget(&knob, [&] { undo.keepStepOpen(); });
    undo.setActionName("Turn");
    knob.set(1);
    undo.undo();
    EXPECT_EQ(undo.undoActionName(), "Turn") << "the step before was closed at once";
    undo.undo();
    EXPECT_FALSE(undo.canUndo());
    undo.redo(); // waits for nothing: the undo still runs
    EXPECT_EQ(knob.value, 0);
    EXPECT_TRUE(undo.isUndoing());
    undo.registerUndoWithTarget(&knob, [&] { knob.value = 5; });
    undo.closeStep();
    EXPECT_FALSE(undo.isUndoing());
    EXPECT_EQ(undo.redoActionNames(), QStringList({"Turn", ""}));
    undo.redo();
    EXPECT_EQ(knob.value, 5);
    undo.closeStep(); // nothing is open
    EXPECT_TRUE(undo.canRedo());
}

TEST(UndoManager, GroupsAreOneStepAndRunBackwards)
{
    UndoManager undo;
    std::vector<int> order;
    undo.beginUndoGrouping();
    undo.registerUndoWithTarget(&order, [&] { order.push_back(1); });
    undo.beginUndoGrouping();
    undo.registerUndoWithTarget(&order, [&] { order.push_back(2); });
    undo.endUndoGrouping();
    undo.setActionName("Both");
    undo.endUndoGrouping();
    undo.beginUndoGrouping();
    undo.endUndoGrouping();
    EXPECT_EQ(undo.undoActionName(), "Both");
    undo.undo();
    EXPECT_EQ(order, (std::vector{2, 1}));
    EXPECT_FALSE(undo.canUndo()) << "an empty group is no step";

    Knob knob{undo};
    undo.beginUndoGrouping();
    knob.set(1);
    EXPECT_TRUE(undo.canUndo());
    undo.undo(); // closes the group first
    EXPECT_EQ(knob.value, 0);
}

TEST(UndoManager, KeepsNoMoreThanItsLevelsAndSaysWhenItChanges)
{
    UndoManager undo;
    int changes = 0;
    QObject::connect(&undo, &UndoManager::stateChanged, [&] { ++changes; });
    undo.setLevelsOfUndo(2);
    Knob knob{undo};
    const int before = changes;
    for (int i = 1; i <= 4; ++i)
        knob.set(i);
    EXPECT_EQ(changes, before + 4);
    while (undo.canUndo())
        undo.undo();
    EXPECT_EQ(knob.value, 2);
    EXPECT_GT(changes, before + 4);
}

} // namespace
