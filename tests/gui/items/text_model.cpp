#include <algorithm>

#include "model.h"

namespace kite::testing {

namespace {

class TextModel final : public ControlModel {
public:
    std::string answer(const ItemStep& step) override
    {
        switch (step.call) {
        case Call::AppendLine: return append(step.text + '\n'), "";
        case Call::AppendHTML: return appendHtml(step.text), "";
        case Call::RemoveAll: return replaceAll(""), "";
        case Call::SetText: return replaceAll(step.text), "";
        case Call::InsertText: return insert(step.text), "";
        case Call::SelAll: return select(0, text_.size()), "";
        case Call::SetSel: return selectLine(step.a), "";
        case Call::ClrAll: return select(0, 0), "";
        case Call::ClrSel: return "";
        case Call::GetText: return cut(text_.substr(first_, last_ - first_), step.b);
        case Call::GetLineCount: return std::to_string(lines().size());
        case Call::GetLine: return lineAnswer(step.a, step.b);
        default: return "no such operation";
        }
    }

    std::string state() const override
    {
        std::string all = inQuotes(text_) + " selected ";
        if (first_ < last_) all += std::to_string(first_) + '-' + std::to_string(last_);
        return all;
    }

private:
    static std::string cut(const std::string& text, int size)
    {
        const std::string part = text.substr(0, static_cast<std::size_t>(size) - 1);
        return answerOf(static_cast<int>(part.size()), part);
    }

    // The empty rest behind a last line end is none.
    std::vector<std::string> lines() const
    {
        std::vector<std::string> all;
        for (std::size_t from = 0; from < text_.size();) {
            const std::size_t end = std::min(text_.find('\n', from), text_.size());
            all.push_back(text_.substr(from, end - from));
            from = end + 1;
        }
        return all;
    }

    std::string lineAnswer(int number, int size) const
    {
        if (number == -1) return cut(text_, size);
        const auto all = lines();
        if (number < 0 || number >= static_cast<int>(all.size())) return answerOf(-1, "");
        return cut(all[static_cast<std::size_t>(number)], size);
    }

    // What is changed at the edge of a selection ends it.
    void append(const std::string& text)
    {
        if (last_ == text_.size()) first_ = last_;
        text_ += text;
    }

    // Without markup it is the text and a blank. The insertion point at the end moves on.
    void appendHtml(const std::string& html)
    {
        const bool wasAtEnd = caret_ == text_.size();
        append(html + ' ');
        if (wasAtEnd) caret_ = text_.size();
    }

    void replaceAll(const std::string& text)
    {
        text_ = text;
        select(0, 0);
    }

    // The insertion point goes to the end of a selection.
    void select(std::size_t first, std::size_t last)
    {
        first_ = first;
        last_ = last;
        caret_ = last;
    }

    void selectLine(int number)
    {
        const auto all = lines();
        if (number < 0 || number >= static_cast<int>(all.size())) return;
        std::size_t start = 0;
        for (int i = 0; i < number; ++i) start += all[static_cast<std::size_t>(i)].size() + 1;
        const std::string& line = all[static_cast<std::size_t>(number)];
        const std::size_t length = line.empty() ? text_.size() - start : line.size();
        if (start < length)
            select(start, length);
        else
            first_ = last_ = 0, caret_ = length;
    }

    void insert(const std::string& text)
    {
        const bool isSelected = first_ < last_;
        const std::size_t from = isSelected ? first_ : caret_;
        const std::size_t to = isSelected ? last_ : caret_;
        text_.replace(from, to - from, text);
        if (isSelected)
            select(from, from + text.size());
        else
            select(from + text.size(), from + text.size());
    }

    std::string text_;
    std::size_t first_ = 0;
    std::size_t last_ = 0;
    std::size_t caret_ = 0;
};

}  // namespace

std::unique_ptr<ControlModel> makeTextModel()
{
    return std::make_unique<TextModel>();
}

}  // namespace kite::testing
