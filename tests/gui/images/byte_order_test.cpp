// byte_order_test.cpp: servers that have the bytes of a pixel the other way round.

#include "gui_test.h"
#include "loaded.h"

using namespace kite::testing;

namespace {

// Makes Xlib believe that the server is of the other kind: then it passes on what it is given, and the
// server reads it in its own order.
class OtherByteOrder {
public:
    explicit OtherByteOrder(Display* display)
        : order_(reinterpret_cast<_XPrivDisplay>(display)->byte_order), original_(order_)
    {
        order_ = original_ == LSBFirst ? MSBFirst : LSBFirst;
    }
    ~OtherByteOrder() { order_ = original_; }
    OtherByteOrder(const OtherByteOrder&) = delete;
    OtherByteOrder& operator=(const OtherByteOrder&) = delete;

private:
    int& order_;
    int original_;
};

}  // namespace

GUI_TEST(ByteOrder, IsTheServers)
{
    ASSERT_NE(serverPixel(kRed), 0U);  // its answer is read before the order changes
    const std::string bytes = BmpFile::direct({{{0x12, 0x34, 0x56}, kRed}}).bytes();
    kite::images::Picture picture;
    {
        const OtherByteOrder other{toolkit::display()};
        picture = loadBytes(bytes);
        XSync(toolkit::display(), False);
    }
    ASSERT_TRUE(picture);
    // A pixel of 24 bits has 32 in the server, the first of which is no part of a colour.
    const Pixels pixels = pixelsOf(picture.pixmap);
    EXPECT_EQ(pixels[0][0] & 0xFFFF00, 0x341200U);
    EXPECT_EQ(pixels[0][1] & 0xFFFF00, 0x00FF00U);
    XFreePixmap(toolkit::display(), picture.pixmap);
}
