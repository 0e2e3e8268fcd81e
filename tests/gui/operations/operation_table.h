// operation_table.h: all operations on controls by id, for the tests that hold for each of them.

#pragma once

#include <functional>
#include <optional>
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
    std::optional<double> refusal = {};  // what it returns for another kind, if not the failure
};

// With arguments that would change a control.
const std::vector<Operation>& allOperations();
const std::vector<Operation>& controlOperations();  // on what all or many kinds have
const std::vector<Operation>& itemOperations();     // on items, lines, selections and trees

inline const std::set<int> kAll{kAllKinds.begin(), kAllKinds.end()};

// For the table: a call that returns nothing, as one that returns 0.
template <typename Call>
std::function<double(int)> quietly(Call call)
{
    return [call](int id) {
        call(id);
        return 0.0;
    };
}

// Everything of the dialog that an operation could change, written out.
std::string stateOfDialog();

}  // namespace kite::testing
