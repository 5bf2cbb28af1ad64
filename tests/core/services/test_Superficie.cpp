#include <gtest/gtest.h>

#include "core/services/Superficie.h"
#include "core/state/Estado.h"

using namespace vanta;

TEST(SuperficieTest, PrintEndsItsLineAndScaleReadsBack) {
    SuperficieGrabada s;
    s.Scale(-1, -10, 3, 2);
    EXPECT_FLOAT_EQ(s.ScaleLeft(), -1);
    EXPECT_FLOAT_EQ(s.ScaleTop(), -10);
    EXPECT_FLOAT_EQ(s.ScaleWidth(), 4);
    EXPECT_FLOAT_EQ(s.ScaleHeight(), 12);
    s.SetCurrentX(1);
    s.SetCurrentY(2);
    s.Print("ab");
    EXPECT_FLOAT_EQ(s.CurrentX(), -1);  // back to the left edge
    EXPECT_FLOAT_EQ(s.CurrentY(), 3);   // one line lower
    s.SetCurrentX(0.5f);
    s.Print("c");  // only CurrentX set: one line below the last
    EXPECT_EQ(s.llamadas.back(), "Print 0.5 3 \"c\"");
}

TEST(SuperficieTest, TransientDrawingIsMarkedAndLinesFollowTheCurrentPoint) {
    SuperficieGrabada s;
    s.SetForeColor(RGB(255, 0, 0));
    s.PSet(1, 1);
    s.SetAutoRedraw(false);
    s.Line(2, 3);
    EXPECT_EQ(s.llamadas[0], "PSet 1 1 #FF0000");
    EXPECT_EQ(s.llamadas[1], "T Line 1 1 2 3 #FF0000");
    EXPECT_FLOAT_EQ(s.CurrentX(), 2);
    EXPECT_FLOAT_EQ(s.CurrentY(), 3);
}

TEST(SuperficieTest, NullSurfaceKeepsScaleAndHasNoTextSize) {
    SuperficieNula s;
    s.SetScaleHeight(115);
    s.SetScaleWidth(12);
    EXPECT_FLOAT_EQ(s.ScaleLeft(), 0);
    EXPECT_FLOAT_EQ(s.ScaleHeight(), 115);
    EXPECT_EQ(s.TextWidth("DIAGRAMA"), 0);
    EXPECT_EQ(s.TextHeight("DIAGRAMA"), 0);
}
