// What each operation does with the controls that have it, with the others, and with ids of none.

#include <climits>

#include "dialog_plan.h"
#include "operation_table.h"

using namespace kite::testing;

namespace {

void withAllKinds(const std::function<void()>& body)
{
    runDialog({.build = buildSimpleKinds, .fill = [&] {
                   makeOtherKinds();
                   body();
               }});
}

std::string numbered(const std::string& before, int id, const std::string& behind = "")
{
    return before + std::to_string(id) + behind;
}

// Exactly that box, the failure value, and everything as it was.
void expectRefused(const Operation& operation, int id, const std::string& message, double result)
{
    const std::string before = stateOfDialog();
    EXPECT_MISUSE(operation.call(id), message, result);
    EXPECT_EQ(stateOfDialog(), before);
}

void expectUnsuitableKindsRefused(const Operation& operation)
{
    for (const Kind kind : kAllKinds) {
        if (operation.kinds.contains(kind)) continue;
        SCOPED_TRACE(kind);
        expectRefused(operation, kind,
                      numbered(operation.name + ": unsuitable control type (id = ", kind, ")"),
                      operation.refusal.value_or(operation.failure));
    }
}

constexpr std::size_t kParts = 8;

// Every eighth operation: a process would take too long for all of them.
void expectPartRefuses(std::size_t part)
{
    withAllKinds([&] {
        for (std::size_t i = part; i < allOperations().size(); i += kParts) {
            SCOPED_TRACE(allOperations()[i].function);
            expectUnsuitableKindsRefused(allOperations()[i]);
        }
    });
}

}  // namespace

GUI_TEST(Refusal, AcceptedKindsShowNoBox)
{
    withAllKinds([&] {
        for (const Operation& operation : allOperations())
            for (const Kind kind : kAllKinds) {
                if (!operation.kinds.contains(kind)) continue;
                SCOPED_TRACE(operation.function + ' ' + std::to_string(kind));
                EXPECT_THAT(errorsDuring([&] { operation.call(kind); }), ::testing::IsEmpty());
            }
    });
}

GUI_TEST(Refusal, UnsuitableKindsOfTheFirstEighth)
{
    expectPartRefuses(0);
}

GUI_TEST(Refusal, UnsuitableKindsOfTheSecondEighth)
{
    expectPartRefuses(1);
}

GUI_TEST(Refusal, UnsuitableKindsOfTheThirdEighth)
{
    expectPartRefuses(2);
}

GUI_TEST(Refusal, UnsuitableKindsOfTheFourthEighth)
{
    expectPartRefuses(3);
}

GUI_TEST(Refusal, UnsuitableKindsOfTheFifthEighth)
{
    expectPartRefuses(4);
}

GUI_TEST(Refusal, UnsuitableKindsOfTheSixthEighth)
{
    expectPartRefuses(5);
}

GUI_TEST(Refusal, UnsuitableKindsOfTheSeventhEighth)
{
    expectPartRefuses(6);
}

GUI_TEST(Refusal, UnsuitableKindsOfTheLastEighth)
{
    expectPartRefuses(7);
}

GUI_TEST(Refusal, IdsBelowZeroAreWrong)
{
    withAllKinds([&] {
        for (const Operation& operation : allOperations())
            for (const int id : {-1, -999, INT_MIN}) {
                SCOPED_TRACE(operation.function);
                expectRefused(operation, id, numbered(operation.name + ": wrong id ", id),
                              operation.failure);
            }
    });
}

GUI_TEST(Refusal, IdsOfNoControl)
{
    withAllKinds([&] {
        for (const Operation& operation : allOperations()) {
            SCOPED_TRACE(operation.function);
            for (const int id : {0, 11, 32767, 32768, 65536 + Edit, INT_MAX}) {
                if (id != 11 && operation.function != "guiIdStatus" &&
                    operation.function != "guiSetText")
                    continue;  // two operations stand for the others
                const std::string message =
                    numbered(operation.name + ": no control with id ", id, " in the dialog");
                if (!operation.isQuiet)
                    expectRefused(operation, id, message, operation.failure);
                else
                    EXPECT_EQ(operation.call(id), operation.failure) << id;
            }
        }
    });
}

GUI_TEST(Refusal, NoDialogIsOpen)
{
    for (const Operation& operation : allOperations())
        for (const int id : {1, -1}) {
            if (id == -1 && operation.function != "guiIdStatus") continue;
            SCOPED_TRACE(operation.function);
            EXPECT_MISUSE(operation.call(id), operation.name + ": no dialog", operation.failure);
        }
}

GUI_TEST(Refusal, ADialogUnderConstructionIsNotOpen)
{
    ASSERT_EQ(guiDialog(""), 0);
    guiEdit(1, 0, 0, 40, 0, 0);
    EXPECT_MISUSE(guiSetText(1, "abc"), "SetText: no dialog");
    EXPECT_MISUSE(guiIdStatus(1), "IdStatus: no dialog", -1);
    guiClose(0);
}

GUI_STARTUP_TEST(Refusal, WithoutAFrameNothingHappensQuietly)
{
    for (const Operation& operation : allOperations())
        for (const int id : {1, 0, -1})
            EXPECT_EQ(operation.call(id), operation.failure) << operation.function;
    app.run([] {});
    for (const Operation& operation : allOperations())
        EXPECT_EQ(operation.call(1), operation.failure) << operation.function << " after the end";
}
