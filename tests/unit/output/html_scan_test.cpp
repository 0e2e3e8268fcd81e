#include "output/html_scan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ctime>
#include <string>

#include "string_sink.h"

using kite::scanHtml;
using kite::testing::StringSink;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

StringSink scanned(std::string_view html, const std::string& before = {})
{
    StringSink sink;
    sink.text = before;
    scanHtml(html, sink);
    EXPECT_TRUE(sink.isWithinText) << html;
    return sink;
}

struct Row {
    std::string_view html;
    std::string_view text;
};

template <std::size_t count>
void expectTexts(const Row (&rows)[count])
{
    for (const Row& row : rows) EXPECT_EQ(scanned(row.html).text, row.text) << row.html;
}

class Preformatted {
public:
    Preformatted() { scanned("<pre>"); }
    ~Preformatted() { scanned("</pre>"); }
};

}  // namespace

TEST(HtmlScan, PlainTextStaysAsItIs)
{
    expectTexts({
        {"", " "},
        {"a", "a "},
        {"a ", "a  "},
        {" two  blanks\tand\n\nlines\r\n", " two  blanks\tand\n\nlines\r\n "},
        {"a > b", "a > b "},
        {"a; b;", "a; b; "},
        {">;>", ">;> "},
        {"\x80\xFF\x01", "\x80\xFF\x01 "},
    });
}

TEST(HtmlScan, Entities)
{
    expectTexts({
        {"a&nbsp;b", "a b "},
        {"a&quot;b", "a\"b "},
        {"a&amp;b", "a&b "},
        {"a&lt;b", "a<b "},
        {"a&gt;b", "a>b "},
        {"&NBSP;&QuOt;&aMP;&LT;&GT;", " \"&<> "},
        {"&lt;&lt;", "<< "},
        {"x&unknown;y", "xy "},
        {"x&;y", "xy "},
        {"x&#65;y", "xy "},
        {"x&ampy;z", "xz "},
    });
}

TEST(HtmlScan, Tags)
{
    expectTexts({
        {"a<br>b", "a\nb "},     {"a<BR>b", "a\nb "},
        {"<b>x</b>", "x "},      {"a<hr>b", "ab "},
        {"a<br/>b", "ab "},  // not the same
        {"a<br >b", "ab "},      {"a<>b", "ab "},
        {"a<!-- b -->c", "ac "}, {"<h1>a", "\na "},
        {"<h2>a", "\na "},       {"<h3>a", "\na "},
        {"<h4>a", "\na "},       {"<h5>a", "\na "},
        {"<h6>a", "\na "},       {"<H6>a", "\na "},
        {"<h7>a", "a "},         {"<h1 x>a", "a "},
        {"a</h4>b", "a\nb "},    {"a</h5>b", "a\nb "},
        {"a</h6>b", "a\nb "},    {"a</p>b", "ab "},
        {"a</li>b", "ab "},      {"a<b x='1>2'>c", "a2'>c "},  // quotes do not count
    });
}

// The position goes on by one byte only: what is longer ends up behind everything that comes later.
TEST(HtmlScan, LongReplacementsEndUpLast)
{
    expectTexts({
        {"<p>one", "\none \n"},
        {"<p>", "\n \n"},
        {"<P>one", "\none \n"},
        {"<p class=x>one", "\none \n"},
        {"<p\tx>one", "one "},
        {"<p>a<p>b", "\na\nb \n\n"},
        {"a</h1>b", "a\nb \n"},
        {"a</h2>b", "a\nb \n"},
        {"a</H3>b", "a\nb \n"},
        {"<li>a", "\na - "},
        {"<li>a<li>b", "\na\nb - - "},
        {"<LI>a<p>b", "\na\nb \n- "},
    });
}

TEST(HtmlScan, SignsBeforeABlank)
{
    expectTexts({
        {"a < b", "a < b "},
        {"a & b", "a & b "},
        {"< ", "<  "},
        {"& ", "&  "},
        {"a <\tb", "a  "},
        {"a &\tb", "a a &\tb "},
        {"a<b < c>d", "a<d "},  // inside a tag: the outer one goes on
        {"a&b & c;d", "a&d "},  // inside an entity, where it is inserted at once
    });
}

TEST(HtmlScan, UnbalancedMarkup)
{
    expectTexts({
        {"a &b", "a a &b "},  // the pending text begins where it began
        {"a&", "aa& "},
        {"a <b", "a  "},
        {"a<", "a "},
        {"<", " "},
        {"&", "& "},
        {"a<b<c>d", "a "},
        {"a<b<c>d>e", "ae "},
        {"a&b&c;d", "aa&b&c;d "},
        {"a&b&c;d;e", "ae "},
        {"a<&>b", "ab "},  // nothing is inserted while the entity is open, but at the end
        {"a<&>b;c", "ac "},
        {"a<&;b>c", "ac "},
        {"a<&>b<i>c", "ac "},
        {"a&<;b>c", "ac "},
        {"a&b<br>c", "a\nc "},
        {"a&b<br", "a "},
        {"x&y<p>z", "x\nz \n"},
    });
}

TEST(HtmlScan, AddsBehindWhatIsThere)
{
    EXPECT_EQ(scanned("<b>x</b>", "old\n").text, "old\nx ");
    EXPECT_EQ(scanned("<p>x", "old").text, "old\nx \n");
    EXPECT_EQ(scanned("", "old").text, "old ");
}

TEST(HtmlScan, InsertionPointFollowsFlushedTextOnly)
{
    EXPECT_THAT(scanned("abc").insertionPoints, IsEmpty());
    EXPECT_THAT(scanned("<br>").insertionPoints, IsEmpty());
    EXPECT_THAT(scanned("ab<br>cd<i>e", "123").insertionPoints, ElementsAre(5, 8));
    EXPECT_THAT(scanned("a<<b").insertionPoints, ElementsAre(1));
}

TEST(HtmlScan, PreformattedIsRememberedBetweenCalls)
{
    EXPECT_EQ(scanned("<PRE>text").text, "text\n ");
    EXPECT_EQ(scanned("more").text, "more\n ");
    EXPECT_EQ(scanned("").text, "\n ");
    EXPECT_EQ(scanned("</PRE>x").text, "x ");
    EXPECT_EQ(scanned("more").text, "more ");
    EXPECT_EQ(scanned("<pre>a</pre>").text, "a ");
    EXPECT_EQ(scanned("</pre>a<pre>").text, "a\n ");
    EXPECT_EQ(scanned("</pre >a").text, "a\n ") << "not the same tag";
    EXPECT_EQ(scanned("</pre>").text, " ");
}

TEST(HtmlScan, PreformattedLineEndPushesWhatEndsUpLast)
{
    const Preformatted preformatted;
    EXPECT_EQ(scanned("<p>a").text, "\na\n \n");
}

TEST(HtmlScan, BodySettings)
{
    const std::vector<std::string> plain{"wrap 0", "scroll 1", "editable 1"};
    const auto with = [&](std::initializer_list<std::string> more) {
        std::vector<std::string> all = plain;
        all.insert(all.end(), more);
        return all;
    };
    struct {
        const char* html;
        std::vector<std::string> settings;
    } const rows[] = {
        {"<b>x", {}},
        {"<body>", plain},
        {"<BODY>", plain},
        {"<body", plain},
        {"<bodyes>", plain},
        {"<body readonly>", with({"editable 0"})},
        {"<body readonly=true>", with({"editable 0"})},
        {"<body readonly=fals>", with({"editable 1"})},
        {"<body readonly='FALSE'>", with({"editable 1"})},
        {"<body readonly=fal>", with({"editable 0"})},
        {"<body wide>", with({"scroll 0"})},
        {"<body wide=off>", with({"scroll 0"})},
        {"<body wide=on>", with({"scroll 0", "wrap 1"})},
        {"<body wide=\"ONE\">", with({"scroll 0", "wrap 1"})},
        {"<body wide=o>", with({"scroll 0"})},
        {"<body wrap=on>", with({"editable 0", "scroll 0", "wrap 1"})},  // the r is in "wrap"
        {"<body readonly=false wrap=on>", with({"editable 0", "scroll 0", "wrap 1"})},
        {"<body wrap=on readonly>", with({"editable 0", "scroll 0", "wrap 1"})},
        {"<body>read", with({"editable 0"})},
        {"<body>now", with({"scroll 0"})},
        {"<body WRAP=on>", plain},
    };
    for (const auto& row : rows) EXPECT_EQ(scanned(row.html).settings, row.settings) << row.html;
}

// The second value is one byte, and the first one goes on behind it.
TEST(HtmlScan, BodyValueLiesOverTheOneBefore)
{
    EXPECT_THAT(
        scanned("<body r1234567=xn wide=o>").settings,
        ElementsAre("wrap 0", "scroll 1", "editable 1", "editable 0", "scroll 0", "wrap 1"));
    EXPECT_THAT(scanned("<body wide=o>").settings,
                ElementsAre("wrap 0", "scroll 1", "editable 1", "scroll 0"))
        << "not from call to call";
}

TEST(HtmlScan, AttributesAreLookedForBehindEachTag)
{
    EXPECT_THAT(scanned("<body readonly>x<body>").settings,
                ElementsAre("wrap 0", "scroll 1", "editable 1", "editable 0",  //
                            "wrap 0", "scroll 1", "editable 1"));
    EXPECT_THAT(scanned("<body>x<body wrap=on>").settings,
                ElementsAre("wrap 0", "scroll 1", "editable 1", "editable 0", "scroll 0", "wrap 1",
                            "wrap 0", "scroll 1", "editable 1", "editable 0", "scroll 0", "wrap 1"))
        << "the first tag finds them in the second, and an r too";
}

TEST(HtmlScan, HostileInputTakesLinearTime)
{
    const auto repeated = [](std::string_view piece, int times) {
        std::string text;
        for (int i = 0; i < times; ++i) text += piece;
        return text;
    };
    const std::string tail = std::string(400'000, ' ') + "=" + std::string(400'000, '-');
    const std::string inputs[] = {
        repeated("<body", 80'000),
        repeated("<body ", 80'000) + "wread" + tail,
        "wread" + tail + repeated("<body>", 80'000),
        repeated("&", 400'000),
        repeated("a<b>", 80'000),
        repeated("a&b", 80'000),
    };
    class Counter : public StringSink {
    public:
        long insert(long, std::string_view piece) override
        {
            inserted += piece.size();
            return static_cast<long>(piece.size());
        }
        std::size_t inserted = 0;
    };
    const std::clock_t start = std::clock();
    for (const std::string& input : inputs) {
        Counter sink;
        scanHtml(input, sink);
        EXPECT_LE(sink.inserted, 2 * input.size() + 2);
    }
    // It is a tenth of that, on whatever machine and however busy; the square would be a minute.
    EXPECT_LT(std::clock() - start, 10 * CLOCKS_PER_SEC);
}
