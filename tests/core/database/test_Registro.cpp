// The saved record without the file: the default name and the values that
// need care (ties, separators, figures that are not finite).
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "core/database/Registro.h"
#include "core/services/Numeros.h"

using namespace vanta;

namespace {

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
    e.SeparadorDecimal = ',';
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

    e.SeparadorDecimal = ',';
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

TEST(Registro, LoQueLePasaAlArchivoSeDiceComoEs) {
    // A folder that cannot be written, though the file can, is not a file
    // that cannot be written.
    EXPECT_NE(bd::CausaSQLite(1544, "attempt to write a readonly database").find("la carpeta"),
              std::string::npos);
    EXPECT_EQ(bd::CausaSQLite(8, ""), "el archivo es de solo lectura");
    EXPECT_EQ(bd::CausaSQLite(99, "raro"), "error de la base de datos (raro)");
    for (int danado : {11, 26, 267}) EXPECT_TRUE(bd::EsDano(danado)) << danado;
    for (int otro : {1, 13, 1544}) EXPECT_FALSE(bd::EsDano(otro)) << otro;
    // A damaged file promises nothing of the records saved before.
    const std::string danado =
        bd::MsgArchivoDanado("/x/BD.sqlite", "Page 3: btreeInitPage() returns error code 11");
    EXPECT_EQ(danado.find("siguen"), std::string::npos);
    EXPECT_NE(danado.find("/x/BD.sqlite está dañado"), std::string::npos);
    EXPECT_NE(bd::MsgNoSeGuarda("x").find("siguen en la base de datos"), std::string::npos);
}

TEST(Registro, TrasBorrarQuedaElSiguienteOElAnteriorSiEraElUltimo) {
    const int casos[][3] = {{0, 4, 0}, {1, 4, 1}, {3, 4, 2}, {0, 1, -1}, {0, 2, 0}, {1, 2, 0}};
    for (const auto& [posicion, cuenta, destino] : casos)
        EXPECT_EQ(bd::PosicionTrasBorrar(posicion, cuenta), destino) << posicion << " de " << cuenta;
}
