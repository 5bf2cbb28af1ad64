// The drawing surfaces on images and on the main window's boxes: the two
// layers, a hidden box drawn all the same, user coordinates both ways, text
// metrics that cover the text drawn, a change of size, coordinates far off
// the scale, and the pointer in user units.
#include <QSignalSpy>
#include <QTest>
#include <cmath>
#include <limits>

#include "gui/services/SuperficieQt.h"
#include "tests/gui/mainwindow/Pruebas.h"

using vanta::pruebas::Cuenta;
using namespace vanta;

namespace {

const QColor kRojo(255, 0, 0), kAzul(0, 0, 255);

// The box of the pixels that differ from the ground.
QRect Tinta(const QImage& imagen, const QColor& fondo) {
    QRect r;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (QColor(imagen.pixel(x, y)) != fondo) r |= QRect(x, y, 1, 1);
    return r;
}

}  // namespace

class PruebaSuperficies : public QObject {
    Q_OBJECT

private slots:
    void lasCapasYUnaCajaOculta() {
        SuperficieQt s;
        s.resize(122, 122);
        s.Scale(0, 0, 1, 1);
        s.SetForeColor(RGB(255, 0, 0));
        s.Line(0, 0.5f, 1, 0.5f);  // drawn while hidden
        const QImage antes = s.Imagen();
        QCOMPARE(antes.deviceIndependentSize().toSize(), s.contentsRect().size());
        s.show();
        QVERIFY(QTest::qWaitForWindowExposed(&s));
        QVERIFY(Cuenta(s.grab().toImage(), kRojo) > 100);
        s.SetAutoRedraw(false);
        s.SetForeColor(RGB(0, 0, 255));
        s.Line(0.5f, 0, 0.5f, 1);
        QCOMPARE(s.Imagen(), antes);  // the overlay leaves the picture alone
        QVERIFY(Cuenta(s.grab().toImage(), kAzul) > 100);
        s.Refresh();
        QCOMPARE(Cuenta(s.grab().toImage(), kAzul), 0);
        s.Line(0.5f, 0, 0.5f, 1);
        s.Cls();  // with AutoRedraw off only the overlay goes
        QCOMPARE(Cuenta(s.grab().toImage(), kAzul), 0);
        QVERIFY(Cuenta(s.grab().toImage(), kRojo) > 100);
        s.SetAutoRedraw(true);
        s.Cls();
        QCOMPARE(Cuenta(s.Imagen(), kRojo), 0);
    }

    void coordenadasTextoYTamano() {
        SuperficieImagen s(kFondoGris);
        s.Dimensionar({.dentro = QSize(400, 200)});
        // A diagram: y is the negative of the quantity.
        s.Scale(1e-5f, -6e6f, 1e-4f, -1e5f);
        const QPointF p = s.APixel(5.5e-5, -3.05e6);
        QVERIFY(std::fabs(p.x() - 200) < 0.01 && std::fabs(p.y() - 100) < 0.01);
        const QPointF u = s.AUsuario(p);
        QVERIFY(std::fabs(u.x() - 5.5e-5) < 1e-10 && std::fabs(u.y() + 3.05e6) < 1);
        // The text drawn fits the box that the metrics give.
        s.Scale(0, 0, 100, 50);
        const float ancho = s.TextWidth("DIAGRAMA PV"), alto = s.TextHeight("DIAGRAMA PV");
        s.SetCurrentX(10);
        s.SetCurrentY(10);
        s.Print("DIAGRAMA PV");
        const QRect tinta = Tinta(s.Imagen(), QColor(245, 245, 245));
        const QPointF esquina = s.APixel(10, 10), lejos = s.APixel(10 + ancho, 10 + alto);
        QVERIFY(tinta.left() >= esquina.x() - 1 && tinta.right() <= lejos.x() + 1);
        QVERIFY(tinta.top() >= esquina.y() - 1 && tinta.bottom() <= lejos.y() + 1);
        QVERIFY(tinta.width() > 0.8 * (lejos.x() - esquina.x()));
        QVERIFY(std::fabs(s.CurrentY() - (10 + alto)) < 1e-4f && s.CurrentX() == 0);
        // Larger: what was drawn stays at the top left; the next Cls clears it.
        s.Dimensionar({.dentro = QSize(500, 260)});
        QCOMPARE(Tinta(s.Imagen(), QColor(245, 245, 245)), tinta);
        s.Cls();
        QVERIFY(Tinta(s.Imagen(), QColor(245, 245, 245)).isEmpty());
        // Coordinates far off the scale or not numbers draw what falls inside.
        const float inf = std::numeric_limits<float>::infinity(),
                    nan = std::numeric_limits<float>::quiet_NaN();
        s.SetForeColor(RGB(255, 0, 0));
        s.PSet(inf, 0.5f);
        s.Line(nan, 0.5f);
        s.SetCurrentX(1e20f);
        s.Print("lejos");
        s.Line(50, 25, 1e30f, 25);
        QVERIFY(Cuenta(s.Imagen(), kRojo) >= 240);
        // No size: no metrics and no picture.
        SuperficieImagen vacia;
        QCOMPARE(vacia.TextWidth("abc"), 0.0f);
        vacia.Line(0, 0, 1, 1);
        QVERIFY(vacia.Imagen().isNull());
    }

    void elRatonLlegaEnUnidadesDeUsuario() {
        SuperficieQt s;
        s.resize(202, 102);
        s.show();
        QVERIFY(QTest::qWaitForWindowExposed(&s));
        s.Scale(0, 0, 100, -50);
        QSignalSpy movimiento(&s, &SuperficieQt::MouseMove), click(&s, &SuperficieQt::Click),
            doble(&s, &SuperficieQt::DblClick), tecla(&s, &SuperficieQt::KeyPress);
        const QPoint sitio = s.contentsRect().topLeft() + QPoint(50, 25);
        QTest::mouseMove(&s, sitio);
        QTRY_VERIFY(!movimiento.isEmpty());
        QVERIFY(std::fabs(movimiento.last().at(2).toFloat() - 25.0f) < 0.6f);
        QVERIFY(std::fabs(movimiento.last().at(3).toFloat() + 12.5f) < 0.6f);
        QTest::mouseClick(&s, Qt::LeftButton, Qt::ShiftModifier, sitio);
        QTest::mouseClick(&s, Qt::RightButton, {}, sitio);
        QCOMPARE(click.count(), 1);
        QTest::mouseDClick(&s, Qt::LeftButton, {}, sitio);
        QCOMPARE(doble.count(), 1);
        QTest::keyClick(&s, Qt::Key_A);
        QCOMPARE(tecla.count(), 1);
    }
};

static vanta::pruebas::Registrar<PruebaSuperficies> registrar;
#include "test_Superficies.moc"
