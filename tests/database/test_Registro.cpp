// The saved record without the file: the default name, the values that need
// care (ties, separators, figures that are not finite), where the browser
// lands after a delete, and the shape of the table.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

#include "database/Registro.h"
#include "services/Numeros.h"

using namespace vanta;

namespace {

// The separator of the test, put back afterwards.
struct Separador {
    explicit Separador(char c) { FijarSeparadorDecimal(c); }
    ~Separador() { FijarSeparadorDecimal('.'); }
};

std::string Columna(const bd::TextosRegistro& t, std::string_view nombre) {
    for (size_t i = 0; i < bd::kColumnasTexto.size(); ++i)
        if (bd::kColumnasTexto[i].nombre == nombre) return t[i];
    ADD_FAILURE() << "no hay columna " << nombre;
    return {};
}

}  // namespace

TEST(Registro, ElNombrePorDefectoLlevaLosNumerosSinRedondearConElSeparadorDelSistema) {
    Estado e;
    e.Humedad = 100.0 / 3;
    e.Fr = 1.1;
    e.TipoCiclo = "Diesel";
    EXPECT_EQ(bd::NombrePorDefecto(e, "Gasóleo"),
              "Aire 33.3333333333333 % de humedad    Gasóleo  Fr = 1.1   Diesel");
    Separador coma(',');
    EXPECT_EQ(bd::NombrePorDefecto(e, "Gasóleo"),
              "Aire 33,3333333333333 % de humedad    Gasóleo  Fr = 1,1   Diesel");
}

TEST(Registro, CadaColumnaTieneSuRedondeoYSuConversion) {
    Estado e;
    e.Tambiente = 298.5;  // 0 decimals, tie to even: 298
    e.Psaturacion = 3169.876;
    e.S1 = 6.8751;
    e.Humedad = 45.6789;
    e.Fe = 0.0678912345;
    e.p1 = 100001.5;  // tie to even: 100002
    e.V1 = 0.000111111;
    e.Qciclo = 1000.26;
    e.Q23 = 400.12;
    e.Fr = 0.9;
    e.Rendimiento = 0.4567891;  // unrounded here
    e.gamma1 = 1.39876;
    e.Gamma2 = 1.39876;
    e.AtomosH = 18.123456789;
    const auto t = bd::ValoresRegistro(e, "nombre", "Gasolina", "informe\r\nde dos líneas");
    EXPECT_EQ(Columna(t, "Tambiente"), "298");
    EXPECT_EQ(Columna(t, "Psaturacion"), "3169.88");
    EXPECT_EQ(Columna(t, "S1"), "6.88");
    EXPECT_EQ(Columna(t, "Humedad"), "45.679");
    EXPECT_EQ(Columna(t, "Fe"), "0.067891");
    EXPECT_EQ(Columna(t, "p1"), "100002");
    EXPECT_EQ(Columna(t, "V1"), "111.11");
    EXPECT_EQ(Columna(t, "Q34"), "600.1");
    EXPECT_EQ(Columna(t, "Lambda"), "1.111");
    EXPECT_EQ(Columna(t, "Fr"), "0.9");
    EXPECT_EQ(Columna(t, "Rendimiento"), "0.4567891");
    EXPECT_EQ(Columna(t, "gamma1"), "1.399");
    EXPECT_EQ(Columna(t, "Gamma2"), "1.3988");
    EXPECT_EQ(Columna(t, "Atomos de H"), "18.123456789");
    EXPECT_EQ(Columna(t, "Guardado como"), "nombre");
    EXPECT_EQ(Columna(t, "TipoCombustible"), "Gasolina");
    EXPECT_EQ(Columna(t, "Informe"), "informe\r\nde dos líneas");

    Separador coma(',');
    EXPECT_EQ(Columna(bd::ValoresRegistro(e, "", "", ""), "Psaturacion"), "3169,88");
}

TEST(Registro, UnaCifraQueNoEsFinitaNoLlegaAlRegistroComoNaNNiInfinito) {
    Estado e;  // Fr = 0: Lambda is 1/0
    e.T3 = std::numeric_limits<double>::quiet_NaN();
    e.Wciclo = std::numeric_limits<double>::infinity();
    for (const std::string& v : bd::ValoresRegistro(e, "", "", "")) {
        EXPECT_EQ(v.find("nan"), std::string::npos) << v;
        EXPECT_EQ(v.find("inf"), std::string::npos) << v;
    }
    EXPECT_EQ(bd::ValoresRegistro(e, "", "", "")[0], "");
}

TEST(Registro, TrasBorrarQuedaElSiguienteOElAnteriorSiEraElUltimoONinguno) {
    EXPECT_EQ(bd::PosicionTrasBorrar(0, 3), 0);   // the first: the one after
    EXPECT_EQ(bd::PosicionTrasBorrar(1, 3), 1);   // a middle one: the one after
    EXPECT_EQ(bd::PosicionTrasBorrar(2, 3), 1);   // the last: the one before
    EXPECT_EQ(bd::PosicionTrasBorrar(0, 1), -1);  // the only one: none
}

TEST(Registro, LaTablaTiene68ColumnasDistintasYLasImagenesPVyTVCruzadas) {
    std::set<std::string_view> nombres;
    for (const auto& c : bd::kColumnasTexto) nombres.insert(c.nombre);
    for (const auto& c : bd::kColumnasImagen) nombres.insert(c.nombre);
    EXPECT_EQ(nombres.size(), 68u);
    for (const auto& c : bd::kColumnasImagen) {
        if (c.nombre == "imgDTV") {
            EXPECT_TRUE(c.cuadro == CuadroImagen::pctPV && c.control == "imgDPV");
        }
        if (c.nombre == "imgDPV") {
            EXPECT_TRUE(c.cuadro == CuadroImagen::pctTV && c.control == "imgDTV");
        }
    }
    const std::string insertar = bd::SQLInsertar();
    EXPECT_EQ(std::count(insertar.begin(), insertar.end(), '?'), 68);
    EXPECT_NE(insertar.find("\"Guardado como\""), std::string::npos);
    EXPECT_EQ(bd::Citado("a\"b"), "\"a\"\"b\"");
}

TEST(Registro, LasCausasDeSQLiteSeDicenEnCastellanoConCodigosExtendidos) {
    EXPECT_EQ(bd::CausaSQLite(13, "database or disk is full"), "el disco está lleno");
    EXPECT_EQ(bd::CausaSQLite(8 | (1 << 8), "x"), "el archivo es de solo lectura");
    EXPECT_NE(bd::CausaSQLite(5, "database is locked").find("otro programa"), std::string::npos);
    EXPECT_NE(bd::CausaSQLite(26, "file is not a database").find("dañado"), std::string::npos);
    EXPECT_NE(bd::CausaSQLite(1, "no such table: x").find("no such table: x"), std::string::npos);
}
