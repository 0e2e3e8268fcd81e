#include <algorithm>
#include <climits>

#include "items_support.h"
#include "model.h"

namespace kite::testing {

namespace {

struct Item {
    int key = 0;
    std::string label;
    std::vector<std::unique_ptr<Item>> below;
};

// Where an item stands: in which list of siblings, and as which of them.
struct Spot {
    std::vector<std::unique_ptr<Item>>* siblings = nullptr;
    std::size_t number = 0;
    Item& item() const { return *(*siblings)[number]; }
    void erase() const { siblings->erase(siblings->begin() + static_cast<std::ptrdiff_t>(number)); }
};

class TreeModel final : public ControlModel {
public:
    std::string answer(const ItemStep& step) override
    {
        switch (step.call) {
        case Call::AddTree: return add(step.a, step.b, step.text), "0";
        case Call::NumTree: return std::to_string(below(step.a).size());
        case Call::NthTree: return std::to_string(nth(step.a, step.b));
        case Call::DelTree: return removeBranch(step.a), "";
        case Call::RemoveItem: return removeAlone(find(root_, step.a)), "";
        case Call::RemoveAll: return removeTopLevel(), "";
        case Call::FindItem: return "1";
        case Call::GetItem: return itemAnswer(step.a, step.b);
        case Call::GetItemCount: return std::to_string(selected_ ? 1 : 0);
        case Call::SetSel: return select(step.a), "";
        case Call::GetSel: return std::to_string(selected_ ? selected_->key - 1 : 0);
        case Call::ClrAll:
        case Call::ClrSel: return "";
        case Call::GetText: return selected_ ? cut(selected_->label, step.b) : answerOf(0, "");
        default: return "no such operation";
        }
    }

    std::string state() const override
    {
        return written(root_) + "selected " +
               (selected_ ? std::to_string(selected_->key) + inQuotes(selected_->label) : "");
    }

    // Where the container puts what moves to the top level is its own business: it is taken over.
    void takeOver(const ItemStep& step, const std::string& state) override
    {
        if (step.call != Call::RemoveItem && step.call != Call::RemoveAll) return;
        Items ordered;
        std::size_t seen = 0;
        while (!root_.empty()) {
            const auto next = std::find_if(root_.begin(), root_.end(), [&](const auto& item) {
                return state.compare(seen, written(*item).size(), written(*item)) == 0;
            });
            if (next == root_.end()) break;  // a difference
            seen += written(**next).size();
            ordered.push_back(std::move(*next));
            root_.erase(next);
        }
        std::move(root_.begin(), root_.end(), std::back_inserter(ordered));
        root_ = std::move(ordered);
    }

private:
    using Items = std::vector<std::unique_ptr<Item>>;

    static std::string cut(const std::string& text, int size)
    {
        const std::string part = text.substr(0, static_cast<std::size_t>(size) - 1);
        return answerOf(static_cast<int>(part.size()), part);
    }

    static std::string written(const Item& item)
    {
        std::string all = std::to_string(item.key) + inQuotes(item.label);
        if (!item.below.empty()) all += "( " + written(item.below) + ')';
        return all + ' ';
    }

    static std::string written(const Items& items)
    {
        std::string all;
        for (const auto& item : items) all += written(*item);
        return all;
    }

    // An item, then all that is below it, then the next beside it.
    static Spot find(Items& items, int key)
    {
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (items[i]->key == key) return {&items, i};
            if (const Spot deeper = find(items[i]->below, key); deeper.siblings) return deeper;
        }
        return {};
    }

    void add(int parentKey, int key, const std::string& label)
    {
        const Spot parent = parentKey == 0 ? Spot{} : find(root_, parentKey);
        Items& siblings = parent.siblings ? parent.item().below : root_;
        siblings.push_back(std::make_unique<Item>(Item{key, label, {}}));
    }

    Items& below(int parentKey)
    {
        if (parentKey == 0) return root_;
        const Spot parent = find(root_, parentKey);
        return parent.siblings ? parent.item().below : none_;
    }

    int nth(int parentKey, int n)
    {
        const Items& items = below(parentKey);
        if (n < 1 || n > static_cast<int>(items.size())) return 0;
        return items[static_cast<std::size_t>(n) - 1]->key;
    }

    void forget(const Item& item)
    {
        if (selected_ == &item) selected_ = nullptr;
        for (const auto& child : item.below) forget(*child);
    }

    void removeBranch(int key)
    {
        const Spot spot = key == 0 ? Spot{} : find(root_, key);
        if (!spot.siblings) return;
        forget(spot.item());
        spot.erase();
    }

    void removeAlone(const Spot& spot)
    {
        if (!spot.siblings) return;
        Items children = std::move(spot.item().below);
        spot.item().below.clear();
        forget(spot.item());
        spot.erase();
        for (auto& child : children) root_.push_back(std::move(child));
    }

    void removeTopLevel()
    {
        std::vector<Item*> top;
        for (const auto& item : root_) top.push_back(item.get());
        for (Item* const item : top) {
            const auto place = std::find_if(root_.begin(), root_.end(),
                                            [&](const auto& one) { return one.get() == item; });
            removeAlone({&root_, static_cast<std::size_t>(place - root_.begin())});
        }
    }

    std::string itemAnswer(int index, int size)
    {
        if (index < 0) return answerOf(-1, "");
        const Spot spot = index == INT_MAX ? find(root_, INT_MIN) : find(root_, index + 1);
        return spot.siblings ? cut(spot.item().label, size) : answerOf(0, "");
    }

    void select(int index)
    {
        const Spot spot = find(root_, index == INT_MAX ? INT_MIN : index + 1);
        if (spot.siblings) selected_ = &spot.item();
    }

    Items root_;
    Items none_;
    const Item* selected_ = nullptr;
};

}  // namespace

std::unique_ptr<ControlModel> makeTreeModel()
{
    return std::make_unique<TreeModel>();
}

Model::Model()
{
    controls_[kBrowseList] = makeListModel(Selects::One);
    controls_[kExtendedList] = makeListModel(Selects::Extended);
    controls_[kMultipleList] = makeListModel(Selects::Multiple);
    controls_[ChoiceBox] = makeDropDownModel(false);
    controls_[Combo] = makeDropDownModel(true);
    controls_[MultiLine] = makeTextModel();
    controls_[Tree] = makeTreeModel();
}

}  // namespace kite::testing
