// The published values the validation compares the program with, read from
// the tables compiled into the program (DatosReferencia.cpp), each with its
// source.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vanta {

// One row of the NIST-JANAF tables: an ideal gas at 0.1 MPa.
struct ReferenciaJANAF {
    std::string especie;  // Ar, CO, CO2, H2O, N2, O2
    double T;             // K
    double cp, s;         // J/(mol·K)
    double h;             // H − H(298.15), J/mol
    std::string fuente;
};

// Published heating values of a fuel, J/kg (0 where the table gives none),
// and its enthalpy of formation, J/mol, where the table gives one.
struct ReferenciaCombustible {
    std::string nombre, formula, fase;
    std::optional<double> entalpiaFormacion;
    double hcs, hci;
    std::string fuente;
};

// The usual flammability range of a fuel of the library in air at ambient
// conditions, as fractions in volume.
struct ReferenciaInflamabilidad {
    std::string combustible;  // the name in the library
    std::string sustancia;    // the substance of the table
    double inferior, superior;
    std::string fuente;
};

const std::vector<ReferenciaJANAF>& ReferenciasJANAF();
const std::vector<ReferenciaCombustible>& ReferenciasCombustibles();
const std::vector<ReferenciaInflamabilidad>& ReferenciasInflamabilidad();

// By name; nullptr when the table has none.
const ReferenciaCombustible* BuscarReferenciaCombustible(std::string_view nombre);
const ReferenciaInflamabilidad* BuscarInflamabilidad(std::string_view combustible);

// The fields of each line of a CSV text after its header; a field between
// double quotes may hold commas.
std::vector<std::vector<std::string>> LeerCSV(std::string_view texto);

}  // namespace vanta
