// gallery_steps.h: what the gallery shows of the tour, in order.

#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tour {

inline constexpr char kFrameTitle[] = "kitegui tour";

struct Step {
    std::string picture;  // part of the picture's file name
    std::string what;     // the user does
    std::function<void()> act;
};

// Each of them changes the screen. The last one asks whether to leave.
const std::vector<Step>& gallerySteps();

}  // namespace tour
