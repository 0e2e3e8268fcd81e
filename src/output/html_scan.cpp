#include "output/html_scan.h"

#include <algorithm>
#include <optional>

#include "output/html_attribute.h"

namespace kite {

namespace {

struct {
    bool isPreformatted = false;  // set by "<pre>", cleared by "</pre>", in whatever call
} state;

// The position goes on by one behind each, however long it is: the second byte of a longer one ends up
// behind all that the same call inserts later. Hosts' pages are made for it.
struct Replacement {
    std::string_view markup;
    std::string_view text;
};
constexpr Replacement kReplacements[] = {
    {"&nbsp;", " "},   {"&quot;", "\""},  {"&amp;", "&"},  {"&lt;", "<"},   {"&gt;", ">"},
    {"<br>", "\n"},    {"<p>", "\n\n"},   {"<p ", "\n\n"}, {"<h1>", "\n"},  {"<h2>", "\n"},
    {"<h3>", "\n"},    {"<h4>", "\n"},    {"<h5>", "\n"},  {"<h6>", "\n"},  {"</h1>", "\n\n"},
    {"</h2>", "\n\n"}, {"</h3>", "\n\n"}, {"</h4>", "\n"}, {"</h5>", "\n"}, {"</h6>", "\n"},
    {"<li>", "\n- "},
};

char lower(char byte)
{
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

// The beginning, which is given in small letters.
bool beginsWith(std::string_view text, std::string_view beginning)
{
    return text.size() >= beginning.size() &&
           std::equal(beginning.begin(), beginning.end(), text.begin(),
                      [](char wanted, char byte) { return wanted == lower(byte); });
}

// One attribute for all tags of a text: it is the last of the text for every tag before it, and absent
// for those behind it. Looked up once: there may be many tags.
class LastAttribute {
public:
    LastAttribute(std::string_view html, std::string_view name) : html_(html), name_(name) {}

    Attribute from(std::size_t tag)
    {
        if (!found_) found_ = findAttribute(html_, name_);
        return found_->isPresent && found_->at >= tag ? *found_ : Attribute{};
    }

private:
    std::string_view html_, name_;
    std::optional<Attribute> found_;
};

class HtmlScan {
public:
    HtmlScan(std::string_view html, HtmlSink& sink)
        : html_(html), sink_(sink), position_(sink.lastPosition())
    {
    }

    void run()
    {
        for (here_ = 0; here_ < html_.size(); ++here_) step(html_[here_]);
        end();
    }

private:
    void step(char byte)
    {
        if (byte == '<' || byte == '&') {
            flush();
            ++(byte == '<' ? tagDepth_ : entityDepth_);
            interpret(html_.substr(here_));
        } else if (byte == '>' && tagDepth_ > 0) {
            leave(tagDepth_);
        } else if (byte == ';' && entityDepth_ > 0) {
            leave(entityDepth_);
        }
    }

    // Tags and entities have no depth of meaning: what is between their ends is dropped.
    void leave(long& depth)
    {
        --depth;
        if (depth == 0) pending_ = here_ + 1;
    }

    // The pending text stays where it begins, so an entity that is never closed repeats it at the end.
    void flush()
    {
        if (pending_ >= here_ || tagDepth_ > 0 || entityDepth_ > 0) return;
        position_ += sink_.insert(position_, html_.substr(pending_, here_ - pending_));
        sink_.setInsertionPoint(position_);
    }

    void interpret(std::string_view rest)
    {
        for (const Replacement& replacement : kReplacements)
            if (beginsWith(rest, replacement.markup)) replace(replacement.text);
        if (beginsWith(rest, "<body")) applyBody();
        if (beginsWith(rest, "<pre>")) state.isPreformatted = true;
        if (beginsWith(rest, "</pre>")) state.isPreformatted = false;
        if (beginsWith(rest, "& ")) takeLiterally(entityDepth_, "&");
        if (beginsWith(rest, "< ")) takeLiterally(tagDepth_, "<");
    }

    void takeLiterally(long& depth, std::string_view sign)
    {
        leave(depth);
        replace(sign);
    }

    void replace(std::string_view text)
    {
        sink_.insert(position_, text);
        ++position_;
    }

    // Of every tag that begins so.
    void applyBody()
    {
        sink_.setWordWrap(false);
        sink_.setHorizontalScroll(true);
        sink_.setEditable(true);
        if (isPresent(readOnly_)) sink_.setEditable(valueBegins("fals"));
        if (!isPresent(wrap_)) return;
        sink_.setHorizontalScroll(false);
        if (valueBegins("on")) sink_.setWordWrap(true);
    }

    bool isPresent(LastAttribute& wanted)
    {
        const Attribute attribute = wanted.from(here_);
        copyValue(attribute, value_);
        return attribute.isPresent;
    }

    bool valueBegins(std::string_view beginning) const
    {
        return beginsWith({value_, sizeof value_}, beginning);
    }

    // The depth of entities does not matter here.
    void end()
    {
        if (pending_ < html_.size() && tagDepth_ == 0)
            position_ += sink_.insert(position_, html_.substr(pending_));
        if (state.isPreformatted) replace("\n");
        sink_.insert(position_, " ");  // always: hosts write one page behind the other
    }

    std::string_view html_;
    HtmlSink& sink_;
    long position_;            // of the next insertion
    std::size_t here_ = 0;     // the byte that is looked at
    std::size_t pending_ = 0;  // where the plain text begins that is not inserted yet
    long tagDepth_ = 0;
    long entityDepth_ = 0;
    LastAttribute readOnly_{html_, "readonly"};
    LastAttribute wrap_{html_, "wrap"};
    char value_[kAttributeValueSize] = {};  // of the attribute looked at, over those before it
};

}  // namespace

void scanHtml(std::string_view html, HtmlSink& sink)
{
    HtmlScan{html, sink}.run();
}

}  // namespace kite
