// Only the lookup of the control reports anything.

#include <climits>

#include "text_attributes_support.h"

using namespace kite::testing;

namespace {

constexpr const char* kAttributes[] = {"", "#ff0000", "/x", "VEXFIXED", kMissing, "Times", nullptr};

}  // namespace

GUI_TEST(TextAttMisuse, WithoutADialog)
{
    for (const char* attribute : kAttributes)
        EXPECT_MISUSE(guiSetTextAtt(1, 0, attribute), "SetText: no dialog");
}

GUI_STARTUP_TEST(TextAttMisuse, WithoutAFrameNothingHappens)
{
    guiSetTextAtt(1, 0, "#ff0000");
    guiSetTextAtt(1, 0, kCourier);
    EXPECT_EQ(guiGetTopWnd(), nullptr);
}

GUI_TEST(TextAttMisuse, ByIdsOfNoControl)
{
    runDialog({.build = [] { guiLabel(1, 0, 0, 20, "x"); },
               .fill =
                   [] {
                       disguise(1);
                       for (const int id : {-1, INT_MIN})
                           EXPECT_MISUSE(guiSetTextAtt(id, 0, "#ff0000"),
                                         "SetText: wrong id " + std::to_string(id));
                       for (const int id : {0, 2, INT_MAX})
                           EXPECT_MISUSE(guiSetTextAtt(id, 0, kCourier),
                                         "SetText: no control with id " + std::to_string(id) +
                                             " in the dialog");
                       EXPECT_EQ(lookOf(innerOf(1)), disguised());
                   }});
}

GUI_TEST(TextAttMisuse, IsNoneWithAnyKindOrAttribute)
{
    withAllKinds([] {
        for (const Kind kind : kAllKinds)
            for (const char* attribute : kAttributes)
                EXPECT_THAT(errorsDuring([&] { guiSetTextAtt(kind, 127, attribute); }),
                            ::testing::IsEmpty())
                    << kind;
    });
}

GUI_TEST(TextAttMisuse, ChangesRaiseNoEvents)
{
    runDialog({.build = buildSimpleKinds, .fill = makeOtherKinds, .look = [](Shown) {
                   settle();
                   Recorder::instance().clear();
                   for (const Kind kind : kAllKinds)
                       for (const char* attribute : {"#ff0000/#000080", kCourier, kSmallest, ""})
                           guiSetTextAtt(kind, 0, attribute);
                   settle();
                   EXPECT_THAT(Recorder::instance().events(), ::testing::IsEmpty());
               }});
}
