// model.h: what lists, choices, combo boxes, texts and trees hold after any operations, without a toolkit.
//
// Answers and states are texts, as item_step.h has them of the real controls.

#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "item_step.h"

namespace kite::testing {

class ControlModel {
public:
    virtual ~ControlModel() = default;
    virtual std::string answer(const ItemStep& step) = 0;  // and does it
    virtual std::string state() const = 0;

    // What the step has left that only the toolkit knows.
    virtual void takeOver(const ItemStep&, const std::string& /*state*/) {}
};

enum class Selects { One, Extended, Multiple };

std::unique_ptr<ControlModel> makeListModel(Selects selects);
std::unique_ptr<ControlModel> makeDropDownModel(bool hasField);
std::unique_ptr<ControlModel> makeTextModel();
std::unique_ptr<ControlModel> makeTreeModel();

// The controls of items_support.h.
class Model {
public:
    Model();
    std::string answer(const ItemStep& step) { return controls_.at(step.id)->answer(step); }
    std::string state(int id) const { return controls_.at(id)->state(); }

    void takeOver(const ItemStep& step, const std::string& state)
    {
        controls_.at(step.id)->takeOver(step, state);
    }

private:
    std::map<int, std::unique_ptr<ControlModel>> controls_;
};

}  // namespace kite::testing
