// kept_size.h: a control keeps its place, whatever its toolkit widget makes of what is put into it.

#pragma once

#include <X11/Intrinsic.h>

namespace kite {

// A scrolled window grows by its scroll bars, when what it shows begins to need them.
class KeptSize {
public:
    explicit KeptSize(Widget control);
    ~KeptSize();

    KeptSize(const KeptSize&) = delete;
    KeptSize& operator=(const KeptSize&) = delete;

private:
    Widget control_;
    Dimension width_;
    Dimension height_;
};

}  // namespace kite
