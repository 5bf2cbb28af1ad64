#include <gtest/gtest.h>

#include "core/workflow/Ampliacion.h"

using namespace vanta;

namespace {
// The overview of a 1024 × 768 window, as the main window lays it out.
GeometriaDiagramas Resumen(double W = 1024, double H = 768) {
    GeometriaDiagramas g;
    g.W = W, g.H = H;
    g.pctPV = {0.001 * W, 0.529 * H, 0.345 * W, 0.32 * H};
    g.pctTV = {0.65 * W, 0.529 * H, 0.35 * W, 0.32 * H};
    g.pctTS = {g.pctPV.Left + 0.65 * g.pctPV.Width, g.pctPV.Top, 0.3 * g.pctPV.Width, 0.3 * g.pctPV.Height};
    g.pctHS = g.pctTS;
    return g;
}
constexpr double kDosTwips = 2.0 / 15;  // at 96 dots per inch
}  // namespace

TEST(AmpliacionTest, FromTheOverviewEveryDiagramEnlarges) {
    for (auto d :
         {DiagramaAmpliable::PV, DiagramaAmpliable::TV, DiagramaAmpliable::TS, DiagramaAmpliable::HS})
        EXPECT_TRUE(DebeAmpliar(d, Resumen(), kDosTwips));
}

TEST(AmpliacionTest, AClickOnTheEnlargedDiagramReturnsAndAnotherEnlargesByItsOwnTest) {
    const GeometriaDiagramas pv = DistribucionAmpliada(DiagramaAmpliable::PV, 1024, 768);
    EXPECT_FALSE(DebeAmpliar(DiagramaAmpliable::PV, pv, kDosTwips));
    EXPECT_TRUE(DebeAmpliar(DiagramaAmpliable::TV, pv, kDosTwips));
    EXPECT_TRUE(DebeAmpliar(DiagramaAmpliable::TS, pv, kDosTwips));  // upper right, Left 0.7 W
    const GeometriaDiagramas ts = DistribucionAmpliada(DiagramaAmpliable::TS, 1024, 768);
    EXPECT_EQ(ts.pctTS.Left, 0);
    EXPECT_FALSE(DebeAmpliar(DiagramaAmpliable::TS, ts, kDosTwips));
    const GeometriaDiagramas hs = DistribucionAmpliada(DiagramaAmpliable::HS, 1024, 768);
    EXPECT_FALSE(DebeAmpliar(DiagramaAmpliable::HS, hs, kDosTwips));
    EXPECT_TRUE(DebeAmpliar(DiagramaAmpliable::TS, hs, kDosTwips));  // the inset stands right of 2 twips
}

TEST(AmpliacionTest, PlacesAndInsetsOfTheTable) {
    const GeometriaDiagramas g = DistribucionAmpliada(DiagramaAmpliable::TS, 1000, 800);
    EXPECT_DOUBLE_EQ(g.pctTS.Width, 700);
    EXPECT_DOUBLE_EQ(g.pctTS.Height, 640);
    EXPECT_DOUBLE_EQ(g.pctPV.Left, 700);  // upper right
    EXPECT_DOUBLE_EQ(g.pctTV.Top, 320);   // lower right
    EXPECT_DOUBLE_EQ(g.pctHS.Left, 0.4 * 700);
    EXPECT_DOUBLE_EQ(g.pctHS.Width, 0.55 * 700);
    EXPECT_DOUBLE_EQ(g.pctHS.Height, 0.4 * 640);
    const GeometriaDiagramas h = DistribucionAmpliada(DiagramaAmpliable::HS, 1000, 800);
    EXPECT_DOUBLE_EQ(h.pctTS.Left, 0.6 * 700);
    EXPECT_DOUBLE_EQ(h.pctTS.Height, 0.2 * 640);
    EXPECT_DOUBLE_EQ(h.pctTS.Width, 0.3 * 700);
}

TEST(AmpliacionTest, SeventyPercentIsRoundedToSingleBeforeTheComparison) {
    GeometriaDiagramas g = Resumen(1001, 768);
    const double setenta = 0.7 * 1001;            // 700.6999999999999 in double
    g.pctPV.Width = static_cast<float>(setenta);  // equal in single precision: no enlargement
    EXPECT_FALSE(DebeAmpliar(DiagramaAmpliable::PV, g, kDosTwips));
}

TEST(AmpliacionTest, ANarrowWindowNeverEnlargesTS) {
    GeometriaDiagramas g = Resumen(1.5, 1);  // 0.65 of pctPV's width below two twips
    EXPECT_FALSE(DebeAmpliar(DiagramaAmpliable::TS, g, 2));
}
