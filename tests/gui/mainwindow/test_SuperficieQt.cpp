// The Qt drawing surface: the two layers, user coordinates both ways, text
// metrics that agree with the text drawn, and the pointer in user units.
#include <QSignalSpy>
#include <QTest>
#include <cmath>
#include <limits>

#include "gui/services/SuperficieQt.h"
#include "tests/gui/mainwindow/Pruebas.h"

using vanta::pruebas::Cuenta;

using namespace vanta;

namespace {

const QColor kRojo(255, 0, 0);
const QColor kAzul(0, 0, 255);

// The box of the pixels that differ from the ground, in device pixels.
QRect Tinta(const QImage& imagen, const QColor& fondo) {
    QRect r;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (QColor(imagen.pixel(x, y)) != fondo) r |= QRect(x, y, 1, 1);
    return r;
}

}  // namespace

class PruebaSuperficieQt : public QObject {
    Q_OBJECT

private slots:
    void unaSuperficieOcultaSeDibujaYLoMuestraAlAparecer() {
        SuperficieQt s;
        s.resize(202, 102);
        s.Scale(0, 0, 10, 10);
        s.SetForeColor(RGB(255, 0, 0));
        s.Line(0, 0, 10, 10);
        const QImage imagen = s.Imagen();
        QCOMPARE(imagen.deviceIndependentSize().toSize(), s.contentsRect().size());
        QVERIFY(Cuenta(imagen, kRojo) > 50);

        s.show();
        QVERIFY(QTest::qWaitForWindowExposed(&s));
        QVERIFY(Cuenta(s.grab().toImage(), kRojo) > 50);
    }

    void laCapaTransitoriaNoTocaElDibujoYRefreshLaBorra() {
        SuperficieQt s;
        s.resize(120, 120);
        s.show();
        QVERIFY(QTest::qWaitForWindowExposed(&s));
        s.Scale(0, 0, 1, 1);
        s.SetForeColor(RGB(255, 0, 0));
        s.Line(0, 0.5f, 1, 0.5f);
        const QImage antes = s.Imagen();

        s.SetAutoRedraw(false);
        s.SetForeColor(RGB(0, 0, 255));
        s.Line(0.5f, 0, 0.5f, 1);
        QCOMPARE(s.Imagen(), antes);
        QVERIFY(Cuenta(s.grab().toImage(), kAzul) > 50);

        // Clearing with AutoRedraw off takes the overlay only.
        s.Cls();
        QCOMPARE(Cuenta(s.grab().toImage(), kAzul), 0);
        QVERIFY(Cuenta(s.grab().toImage(), kRojo) > 50);

        s.Line(0.5f, 0, 0.5f, 1);
        s.Refresh();
        const QImage vista = s.grab().toImage();
        QCOMPARE(Cuenta(vista, kAzul), 0);
        QVERIFY(Cuenta(vista, kRojo) > 50);
        QCOMPARE(s.Imagen(), antes);

        // With AutoRedraw on again, Cls clears the picture itself.
        s.SetAutoRedraw(true);
        s.Cls();
        QCOMPARE(Cuenta(s.Imagen(), kRojo), 0);
    }

    void lasCoordenadasDeUsuarioVanYVuelven_data() {
        QTest::addColumn<QRectF>("escala");  // x1, y1 and the size to x2, y2
        QTest::addColumn<QPointF>("punto");
        QTest::addColumn<QPointF>("fraccion");  // where it falls in the picture
        QTest::newRow("y hacia abajo") << QRectF(0, 0, 10, 10) << QPointF(2.5, 7.5) << QPointF(0.25, 0.75);
        QTest::newRow("y hacia arriba") << QRectF(0, 10, 10, -10) << QPointF(2.5, 7.5) << QPointF(0.25, 0.25);
        // The diagrams: y is the negative of the quantity.
        QTest::newRow("diagrama") << QRectF(1e-5, -6e6, 9e-5, 6e6 - 1e5) << QPointF(5.5e-5, -3.05e6)
                                  << QPointF(0.5, 0.5);
    }
    void lasCoordenadasDeUsuarioVanYVuelven() {
        QFETCH(QRectF, escala);
        QFETCH(QPointF, punto);
        QFETCH(QPointF, fraccion);
        SuperficieQt s;
        s.resize(402, 202);
        s.Scale(escala.left(), escala.top(), escala.left() + escala.width(), escala.top() + escala.height());
        const QSizeF dentro = s.contentsRect().size();
        const QPointF p = s.APixel(punto.x(), punto.y());
        QVERIFY(std::fabs(p.x() - fraccion.x() * dentro.width()) < 0.01);
        QVERIFY(std::fabs(p.y() - fraccion.y() * dentro.height()) < 0.01);
        const QPointF u = s.AUsuario(p);
        QVERIFY(std::fabs(u.x() - punto.x()) < 1e-6 * std::fabs(escala.width()));
        QVERIFY(std::fabs(u.y() - punto.y()) < 1e-6 * std::fabs(escala.height()));

        // A point plotted there lands on that pixel.
        s.SetForeColor(RGB(255, 0, 0));
        s.PSet(static_cast<float>(punto.x()), static_cast<float>(punto.y()));
        const QRect tinta = Tinta(s.Imagen(), Qt::white);
        QVERIFY(!tinta.isEmpty());
        QVERIFY(std::abs(tinta.center().x() - p.x() * s.devicePixelRatioF()) <= 1.5);
        QVERIFY(std::abs(tinta.center().y() - p.y() * s.devicePixelRatioF()) <= 1.5);
    }

    void lasMedidasDelTextoEstanEnUnidadesYCubrenLoDibujado() {
        SuperficieQt s;
        s.resize(402, 202);
        s.Scale(0, 0, 100, 50);
        const float ancho = s.TextWidth("DIAGRAMA PV");
        const float alto = s.TextHeight("DIAGRAMA PV");
        QVERIFY(ancho > 0 && alto > 0);
        s.SetScaleWidth(200);
        QVERIFY(std::fabs(s.TextWidth("DIAGRAMA PV") - 2 * ancho) < 1e-3f * ancho);
        // Both measures stay positive when y grows upwards.
        s.Scale(0, 0, 100, -50);
        QVERIFY(std::fabs(s.TextHeight("DIAGRAMA PV") - alto) < 1e-4f * alto);

        // The text drawn fits the box that the metrics give, in the same units.
        s.Scale(0, 0, 100, 50);
        s.SetCurrentX(10);
        s.SetCurrentY(10);
        s.Print("DIAGRAMA PV");
        const QRect tinta = Tinta(s.Imagen(), Qt::white);
        const qreal dpr = s.devicePixelRatioF();
        const QPointF esquina = s.APixel(10, 10) * dpr;
        const QPointF lejos = s.APixel(10 + ancho, 10 + alto) * dpr;
        QVERIFY2(tinta.left() >= esquina.x() - 1 && tinta.right() <= lejos.x() + 1, "ancho del texto");
        QVERIFY2(tinta.top() >= esquina.y() - 1 && tinta.bottom() <= lejos.y() + 1, "alto del texto");
        QVERIFY2(tinta.width() > 0.8 * (lejos.x() - esquina.x()), "el texto llena su ancho");
        // Print ends the line: one line of text lower, back at the left edge.
        QVERIFY(std::fabs(s.CurrentY() - (10 + alto)) < 1e-4f);
        QCOMPARE(s.CurrentX(), 0.0f);
    }

    void sinTamanoNoMideNiDibuja() {
        SuperficieQt s;
        s.resize(0, 0);
        s.Scale(0, 0, 10, 10);
        QCOMPARE(s.TextWidth("abc"), 0.0f);
        QCOMPARE(s.TextHeight("abc"), 0.0f);
        s.Line(0, 0, 10, 10);
        s.Print("abc");
        QVERIFY(s.Imagen().isNull());
    }

    void alCambiarDeTamanoLaImagenGuardaLoDibujadoDesdeArribaALaIzquierda() {
        SuperficieQt s(nullptr, kFondoGris);
        s.resize(100, 80);
        s.Scale(0, 0, 1, 1);
        s.SetForeColor(RGB(255, 0, 0));
        s.Line(0, 0, 1, 1);
        const QRect antes = Tinta(s.Imagen(), QColor(245, 245, 245));
        QVERIFY(!antes.isEmpty());
        // Larger: the same ink where it was, the new strip in the ground.
        s.resize(160, 90);
        QImage imagen = s.Imagen();
        QCOMPARE(imagen.deviceIndependentSize().toSize(), s.contentsRect().size());
        QCOMPARE(Tinta(imagen, QColor(245, 245, 245)), antes);
        // Smaller: what still fits.
        s.resize(50, 40);
        imagen = s.Imagen();
        QCOMPARE(imagen.deviceIndependentSize().toSize(), s.contentsRect().size());
        const QRect queda = Tinta(imagen, QColor(245, 245, 245));
        QCOMPARE(queda.topLeft(), antes.topLeft());
        QVERIFY(queda.width() >= imagen.width() - 2 && queda.height() >= imagen.height() - 2);
        // The next Cls starts afresh at the new size.
        s.Cls();
        QVERIFY(Tinta(s.Imagen(), QColor(245, 245, 245)).isEmpty());
    }

    void loQueSeSaleDeLaEscalaNoRompeElDibujo() {
        SuperficieQt s;
        s.resize(100, 100);
        s.Scale(0, 0, 1, 1);
        s.SetForeColor(RGB(255, 0, 0));
        const float inf = std::numeric_limits<float>::infinity();
        const float nan = std::numeric_limits<float>::quiet_NaN();
        s.PSet(inf, 0.5f);
        s.Line(nan, 0.5f);
        s.LineBox(-1e30f, -1e30f, 1e30f, 1e30f, RGB(0, 0, 255));
        s.SetCurrentX(1e20f);
        s.Print("lejos");
        s.Cls();
        // A line from the middle to very far keeps the part that is inside.
        s.Line(0.5f, 0.5f, 1e30f, 0.5f);
        QVERIFY(Cuenta(s.Imagen(), kRojo) >= s.contentsRect().width() / 2 - 2);
    }

    void elRatonLlegaEnUnidadesDeUsuario() {
        SuperficieQt s;
        s.resize(202, 102);
        s.show();
        QVERIFY(QTest::qWaitForWindowExposed(&s));
        s.Scale(0, 0, 100, -50);
        QSignalSpy movimiento(&s, &SuperficieQt::MouseMove);
        QSignalSpy click(&s, &SuperficieQt::Click);
        QSignalSpy doble(&s, &SuperficieQt::DblClick);
        QSignalSpy tecla(&s, &SuperficieQt::KeyPress);

        const QPoint sitio = s.contentsRect().topLeft() + QPoint(50, 25);
        QTest::mouseMove(&s, sitio);
        QTRY_VERIFY(!movimiento.isEmpty());
        const QList<QVariant> m = movimiento.last();
        QCOMPARE(m.at(2).typeId(), QMetaType::Float);
        QVERIFY(std::fabs(m.at(2).toFloat() - 25.0f) < 0.6f);
        QVERIFY(std::fabs(m.at(3).toFloat() - (-12.5f)) < 0.6f);

        QTest::mouseClick(&s, Qt::LeftButton, Qt::ShiftModifier, sitio);
        QCOMPARE(click.count(), 1);
        QTest::mouseClick(&s, Qt::RightButton, {}, sitio);
        QCOMPARE(click.count(), 1);
        QTest::mouseDClick(&s, Qt::LeftButton, {}, sitio);
        QCOMPARE(doble.count(), 1);
        QTest::keyClick(&s, Qt::Key_A);
        QCOMPARE(tecla.count(), 1);
        QCOMPARE(tecla.first().at(0).toInt(), int('a'));
    }
};

static vanta::pruebas::Registrar<PruebaSuperficieQt> registro;

#include "test_SuperficieQt.moc"
