// operation_table.h: all operations on controls by id, for the tests that hold for each of them.

#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "hand_made_controls.h"

namespace kite::testing {

struct Operation {
    std::string function;
    std::string name;     // in its messages
    std::set<int> kinds;  // that have it
    bool isQuiet;         // says nothing of an id that does not exist
    double failure;       // what it returns then; 0 where it returns nothing
    std::function<double(int id)> call;
};

// With arguments that would change a control.
const std::vector<Operation>& allOperations();

// Everything of the dialog that an operation could change, written out.
std::string stateOfDialog();

}  // namespace kite::testing
