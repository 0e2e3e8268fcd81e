#include <algorithm>
#include <climits>
#include <cstdlib>
#include <set>

#include "model.h"

namespace kite::testing {

namespace {

constexpr std::size_t kLongest = 1023;

class ItemsModel : public ControlModel {
protected:
    int count() const { return static_cast<int>(items_.size()); }
    bool has(int index) const { return index >= 0 && index < count(); }
    const std::string& at(int index) const { return items_[static_cast<std::size_t>(index)]; }

    // Where it goes: an index that the control does not have is the end.
    int insert(int index, const std::string& text)
    {
        const int place = has(index) ? index : count();
        items_.insert(items_.begin() + place, text.substr(0, kLongest));
        return place;
    }

    void erase(int index) { items_.erase(items_.begin() + index); }

    std::string itemAnswer(int index, int size) const
    {
        if (!has(index)) return answerOf(-1, "");
        const std::string part = at(index).substr(0, static_cast<std::size_t>(size) - 1);
        return answerOf(static_cast<int>(part.size()), part);
    }

    std::string read(const ItemStep& step) const
    {
        switch (step.call) {
        case Call::GetItem: return itemAnswer(step.a, step.b);
        case Call::GetItemInt:
            return std::to_string(has(step.a) ? std::atoi(at(step.a).c_str()) : 0);
        case Call::GetItemLen:
            return std::to_string(has(step.a) ? static_cast<int>(at(step.a).size()) : -1);
        case Call::GetItemCount: return std::to_string(count());
        default: return "no such operation";
        }
    }

    std::vector<std::string> items_;
};

class ListModel final : public ItemsModel {
public:
    explicit ListModel(Selects selects) : selects_(selects) {}

    std::string answer(const ItemStep& step) override
    {
        switch (step.call) {
        case Call::AppendItem: return add(-1, step.text), "";
        case Call::AppendItemInt: return add(-1, std::to_string(step.a)), "";
        case Call::InsertItem: return add(step.a, step.text), "";
        case Call::RemoveItem: return remove(step.a), "";
        case Call::RemoveAll: return removeAll(), "";
        case Call::FindItem: return std::to_string(find(step.a, step.text));
        case Call::SelAll: return selectAll(), "";
        case Call::GetSelCount: return std::to_string(selectionCount());
        case Call::GetSelItems: return selectionAnswer(step.b);
        case Call::GetNthSel: return std::to_string(nthSelected(step.a));
        case Call::SetSel: return select(step.a), "";
        case Call::GetSel: return std::to_string(cursor_);
        case Call::ClrAll: return deselectAll(), "";
        case Call::ClrSel: return deselect(step.a), "";
        case Call::MoveItemUp: return move(-1), "";
        case Call::MoveItemDown: return move(+1), "";
        case Call::GetText: return cursor_ < 0 ? answerOf(-1, "") : itemAnswer(cursor_, step.b);
        default: return read(step);
        }
    }

    std::string state() const override
    {
        std::string all;
        for (int i = 0; i < count(); ++i) all += inQuotes(at(i)) + ' ';
        const std::vector<int> selected{selected_.begin(), selected_.end()};
        return all + "selected " + indexes(selected) + "cursor " + std::to_string(cursor_);
    }

private:
    bool selectsSeveral() const { return selects_ != Selects::One; }

    void add(int index, const std::string& text)
    {
        const int place = insert(index, text);
        std::set<int> moved;
        for (const int one : selected_) moved.insert(one >= place ? one + 1 : one);
        selected_ = moved;
        // The cursor stays on its item.
        if (count() == 1)
            cursor_ = 0;
        else if (place <= cursor_)
            ++cursor_;
        if (count() == 1 && selects_ != Selects::Multiple) selected_ = {0};
    }

    void remove(int index)
    {
        if (!has(index)) return;
        const bool staysByNumber = index >= cursor_ && cursor_ != count() - 1;
        if (!staysByNumber) --cursor_;
        erase(index);
        std::set<int> moved;
        for (const int one : selected_)
            if (one != index) moved.insert(one > index ? one - 1 : one);
        selected_ = moved;
        if (!selectsSeveral() && cursor_ >= 0) selected_ = {cursor_};
    }

    void removeAll()
    {
        items_.clear();
        selected_.clear();
        cursor_ = -1;
    }

    int find(int behind, const std::string& text) const
    {
        for (int i = 0; i < count(); ++i)
            if (i > behind && at(i) == text) return i;
        return -1;
    }

    void selectAll()
    {
        for (int i = 0; i < count(); ++i) selected_.insert(i);
        cursor_ = count() - 1;
    }

    int selectionCount() const { return selectsSeveral() ? static_cast<int>(selected_.size()) : 1; }

    std::vector<int> selection() const
    {
        if (!selectsSeveral()) return {cursor_};
        return {selected_.begin(), selected_.end()};
    }

    std::string selectionAnswer(int size) const
    {
        std::vector<int> stored = selection();
        stored.resize(std::min(stored.size(), static_cast<std::size_t>(size)));
        return answerOf(static_cast<int>(stored.size()), indexes(stored));
    }

    int nthSelected(int n) const
    {
        if (n < 0 || n >= selectionCount()) return -1;
        return selection()[static_cast<std::size_t>(n)];
    }

    void select(int index)
    {
        if (!has(index)) return;
        if (!selectsSeveral()) selected_.clear();
        selected_.insert(index);
        cursor_ = *selected_.rbegin();  // the toolkit's, and for a single one the operation's
    }

    void deselectAll()
    {
        if (selectsSeveral()) selected_.clear();
    }

    void deselect(int index)
    {
        if (selectsSeveral()) selected_.erase(index);
    }

    void move(int by)
    {
        const int from = cursor_;
        const int to = from + by;
        if (!has(from) || !has(to)) return;
        const std::string text = at(from);
        const bool wasSelected = !selectsSeveral() || selected_.contains(from);
        remove(from);
        add(to, text);
        if (wasSelected) select(to);
        if (selectsSeveral()) cursor_ = to;
    }

    Selects selects_;
    std::set<int> selected_;
    int cursor_ = -1;
};

class DropDownModel final : public ItemsModel {
public:
    explicit DropDownModel(bool hasField) : hasField_(hasField) {}

    std::string answer(const ItemStep& step) override
    {
        switch (step.call) {
        case Call::AppendItem: return add(-1, step.text), "";
        case Call::AppendItemInt: return add(-1, std::to_string(step.a)), "";
        case Call::InsertItem: return add(step.a, step.text), "";
        case Call::RemoveItem: return remove(step.a), "";
        case Call::RemoveAll: return items_.clear(), selectNone(), "";
        case Call::SetSel: return step.a < 0 ? selectNone() : select(step.a), "";
        case Call::GetSel: return std::to_string(selection());
        case Call::ClrAll:
        case Call::ClrSel: return hasField_ ? selectNone() : void(), "";
        case Call::SetText: return type(step.text), "";
        case Call::GetText: {
            const std::string part = text_.substr(0, static_cast<std::size_t>(step.b) - 1);
            return answerOf(static_cast<int>(part.size()), part);
        }
        default: return read(step);
        }
    }

    std::string state() const override
    {
        std::string all;
        for (int i = 0; i < count(); ++i) all += inQuotes(at(i)) + ' ';
        return all + "selected " + (selected_ < 0 ? "" : indexes({selected_})) + "text " +
               inQuotes(text_);
    }

private:
    void add(int index, const std::string& text)
    {
        const int place = insert(index, text);
        if (count() == 1) return select(0);
        if (selected_ >= place) ++selected_;
    }

    void remove(int index)
    {
        if (index == -1) index = count() - 1;
        if (count() == 0) return selectNone();  // also what was typed
        if (!has(index)) return;
        erase(index);
        if (count() == 0) return selectNone();
        if (selected_ == index)
            select(std::min(index, count() - 1));
        else if (selected_ > index)
            --selected_;
    }

    void select(int index)
    {
        if (!has(index)) return;
        selected_ = index;
        text_ = at(index);
    }

    void selectNone()
    {
        selected_ = -1;
        text_.clear();
    }

    void type(const std::string& text)
    {
        text_ = text;
        if (text.empty()) return;  // the toolkit selects nothing else for it
        const auto found = std::find(items_.begin(), items_.end(), text);
        selected_ = found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
    }

    // The toolkit's position is 0 when nothing is selected.
    int selection() const
    {
        constexpr std::size_t kCompared = 9;
        const int position = std::max(selected_, 0);
        const std::string item = has(position) ? at(position) : "";
        return text_.substr(0, kCompared) == item.substr(0, kCompared) ? position : -1;
    }

    bool hasField_;
    int selected_ = -1;
    std::string text_;
};

}  // namespace

std::unique_ptr<ControlModel> makeListModel(Selects selects)
{
    return std::make_unique<ListModel>(selects);
}

std::unique_ptr<ControlModel> makeDropDownModel(bool hasField)
{
    return std::make_unique<DropDownModel>(hasField);
}

}  // namespace kite::testing
