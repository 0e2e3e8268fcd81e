// html_fuzz.cpp: arbitrary bytes as markup. The scan is compared with a slow and plain one that is written
// for nothing but to be right, and every insertion must lie within the text.

#include <strings.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "output/html_attribute.h"
#include "output/html_scan.h"

namespace {

void require(bool holds)
{
    if (!holds) std::abort();
}

struct Result {
    std::string text = "before";
    std::vector<long> insertionPoints;
    std::string settings;

    bool operator==(const Result&) const = default;
};

class StringSink : public kite::HtmlSink {
public:
    Result result;

    long lastPosition() override { return static_cast<long>(result.text.size()); }

    long insert(long position, std::string_view piece) override
    {
        require(position >= 0 && position <= lastPosition());
        result.text.insert(static_cast<std::size_t>(position), piece);
        return static_cast<long>(piece.size());
    }

    void setInsertionPoint(long position) override
    {
        require(position >= 0 && position <= lastPosition());
        result.insertionPoints.push_back(position);
    }

    void setEditable(bool value) override { result.settings += value ? 'E' : 'e'; }
    void setWordWrap(bool value) override { result.settings += value ? 'W' : 'w'; }
    void setHorizontalScroll(bool value) override { result.settings += value ? 'S' : 's'; }
};

class PlainScan {
public:
    Result run(const char* html)
    {
        int pending = 0;
        int index = 0;
        for (; html[index]; ++index) {
            const char byte = html[index];
            if (byte == '<' || byte == '&') {
                const std::string text(html + pending, html + std::max(pending, index));
                if (!text.empty() && tags == 0 && entities == 0) flush(text);
                ++(byte == '<' ? tags : entities);
                if (interpret(html + index)) pending = index + 1;
            } else if (byte == '>' && tags > 0) {
                if (--tags == 0) pending = index + 1;
            } else if (byte == ';' && entities > 0) {
                if (--entities == 0) pending = index + 1;
            }
        }
        if (pending < index && tags == 0) add(html + pending);
        if (isPreformatted) replace("\n");
        replace(" ");
        return result;
    }

private:
    void add(const std::string& text)
    {
        result.text.insert(position, text);
        position += text.size();
    }

    void flush(const std::string& text)
    {
        add(text);
        result.insertionPoints.push_back(static_cast<long>(position));
    }

    void replace(const char* text)
    {
        result.text.insert(position, text);
        ++position;
    }

    // True when the pending text begins behind this byte.
    bool interpret(const char* rest)
    {
        const auto is = [&](const char* markup) {
            return strncasecmp(rest, markup, std::string_view{markup}.size()) == 0;
        };
        if (is("&nbsp;")) replace(" ");
        if (is("&quot;")) replace("\"");
        if (is("&amp;")) replace("&");
        if (is("&lt;")) replace("<");
        if (is("&gt;")) replace(">");
        if (is("<body")) body(rest);
        if (is("<br>")) replace("\n");
        if (is("<p>") || is("<p ")) replace("\n\n");
        for (const char* open : {"<h1>", "<h2>", "<h3>", "<h4>", "<h5>", "<h6>"})
            if (is(open)) replace("\n");
        for (const char* close : {"</h1>", "</h2>", "</h3>"})
            if (is(close)) replace("\n\n");
        for (const char* close : {"</h4>", "</h5>", "</h6>"})
            if (is(close)) replace("\n");
        if (is("<li>")) replace("\n- ");
        if (is("<pre>")) isPreformatted = true;
        if (is("</pre>")) isPreformatted = false;
        if (is("& ")) {
            replace("&");
            return --entities == 0;
        }
        if (is("< ")) {
            replace("<");
            return --tags == 0;
        }
        return false;
    }

    void body(const char* rest)
    {
        result.settings += "wSE";
        if (kite::GetAttribute(rest, "readonly", value))
            result.settings += strncasecmp(value, "fals", 4) == 0 ? 'E' : 'e';
        if (!kite::GetAttribute(rest, "wrap", value)) return;
        result.settings += 's';
        if (strncasecmp(value, "on", 2) == 0) result.settings += 'W';
    }

    Result result;
    std::size_t position = result.text.size();
    int tags = 0;
    int entities = 0;
    bool isPreformatted = false;
    char value[kite::kAttributeValueSize] = "";
};

// Nothing but the buffer is written to, and what is found lies in the text.
void lookForAttributes(const std::string& tag)
{
    for (const char* name :
         {"readonly", "wrap", "=", "\"", "a very long name, longer than many tags"}) {
        char value[kite::kAttributeValueSize + 1];
        std::memset(value, '#', sizeof value);
        const int result = kite::GetAttribute(tag.c_str(), name, value);
        require(result == 0 || result == 1);
        require(value[kite::kAttributeValueSize] == '#');
        const kite::Attribute found = kite::findAttribute(tag, name);
        require(found.isPresent == (result == 1));
        require(found.value.size() <= tag.size());
        if (found.isPresent) require(tag[found.at] == name[0]);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::string html = bytes.substr(0, bytes.find('\0'));

    StringSink end;
    kite::scanHtml("</pre>", end);  // no input knows of another one
    StringSink sink;
    kite::scanHtml(html, sink);
    require(sink.result == PlainScan{}.run(html.c_str()));
    require(sink.result.text.size() <= 2 * html.size() + 16);
    lookForAttributes(html);
    return 0;
}
