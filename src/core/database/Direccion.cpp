#include "core/database/Direccion.h"

#include <algorithm>
#include <cctype>

namespace vanta::bd {

namespace {

constexpr std::string_view kEsquemas[] = {"postgresql://", "postgres://"};
constexpr std::string_view kModosSSL[] = {"disable", "allow",     "prefer",
                                          "require", "verify-ca", "verify-full"};

bool EmpiezaPor(std::string_view texto, std::string_view prefijo) {
    if (texto.size() < prefijo.size()) return false;
    for (size_t i = 0; i < prefijo.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(texto[i])) != prefijo[i]) return false;
    return true;
}

bool SoloCifras(std::string_view s) {
    return !s.empty() && std::all_of(s.begin(), s.end(), [](char c) { return c >= '0' && c <= '9'; });
}

int Hex(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

// A piece of the address with its %XX codes undone; nothing when a code is
// broken.
std::optional<std::string> Decodificar(std::string_view s) {
    std::string r;
    for (size_t i = 0; i < s.size(); ++i) {
        if (s[i] != '%') {
            r += s[i];
            continue;
        }
        if (i + 2 >= s.size()) return std::nullopt;
        const int alto = Hex(s[i + 1]), bajo = Hex(s[i + 2]);
        // A NUL would end the text where libpq reads it.
        if (alto < 0 || bajo < 0 || (alto == 0 && bajo == 0)) return std::nullopt;
        r += static_cast<char>(alto * 16 + bajo);
        i += 2;
    }
    return r;
}

LecturaDireccion Error(std::string mensaje) {
    return {std::nullopt, std::move(mensaje)};
}

std::string ErrorPuerto(std::string_view puerto) {
    return "puerto no válido en la dirección: " + std::string(puerto);
}

bool PuertoValido(std::string_view s, int& puerto) {
    if (!SoloCifras(s) || s.size() > 5) return false;
    puerto = std::stoi(std::string(s));
    return puerto >= 1 && puerto <= 65535;
}

// A value that libpq reads unquoted from Qt's options, which Qt joins with
// blanks: no blank, semicolon, quote or backslash.
bool ValorLimpio(std::string_view v) {
    return !v.empty() && v.find_first_of(" \t\r\n;'\\") == std::string_view::npos;
}

constexpr std::string_view kEsperasDireccion[] = {"connect_timeout", "statement_timeout", "lock_timeout"};

bool EsEspera(std::string_view clave) {
    return std::find(std::begin(kEsperasDireccion), std::end(kEsperasDireccion), clave) !=
           std::end(kEsperasDireccion);
}

}  // namespace

LecturaDireccion LeerDireccion(std::string_view texto) {
    if (texto.empty()) return Error(std::string(kErrorDireccionVacia));
    std::optional<std::string_view> uri;
    for (std::string_view esquema : kEsquemas)
        if (EmpiezaPor(texto, esquema)) uri = texto.substr(esquema.size());
    if (!uri) {
        if (texto.find("://") != std::string_view::npos)
            return Error("dirección no reconocida: " + std::string(texto) +
                         " (escriba la ruta de un archivo SQLite o una dirección como " +
                         std::string(kEjemploDireccion) + ")");
        Direccion d;
        d.texto = d.ruta = texto;
        return {d, {}};
    }

    Direccion d;
    d.motor = Motor::PostgreSQL;
    d.texto = texto;
    const std::string_view resto = *uri;
    const size_t interrogacion = resto.find('?');
    std::string_view consulta =
        interrogacion == std::string_view::npos ? std::string_view() : resto.substr(interrogacion + 1);
    const std::string_view principal = resto.substr(0, interrogacion);
    const size_t barra = principal.find('/');
    const std::string_view autoridad = principal.substr(0, barra);
    const std::string_view camino =
        barra == std::string_view::npos ? std::string_view() : principal.substr(barra + 1);

    std::string_view servidor = autoridad;
    if (const size_t arroba = autoridad.rfind('@'); arroba != std::string_view::npos) {
        const std::string_view usuario = autoridad.substr(0, arroba);
        if (usuario.find(':') != std::string_view::npos) return Error(std::string(kErrorClaveEnDireccion));
        const auto u = Decodificar(usuario);
        if (!u) return Error("código % mal formado en la dirección: " + std::string(usuario));
        d.usuario = *u;
        servidor = autoridad.substr(arroba + 1);
    }
    std::string_view puerto;
    if (!servidor.empty() && servidor.front() == '[') {
        const size_t cierre = servidor.find(']');
        if (cierre == std::string_view::npos)
            return Error("falta el corchete de cierre en la dirección: " + std::string(servidor));
        const std::string_view tras = servidor.substr(cierre + 1);
        if (!tras.empty() && tras.front() != ':') return Error(ErrorPuerto(tras));
        if (!tras.empty()) puerto = tras.substr(1);
        servidor = servidor.substr(1, cierre - 1);
    } else if (const size_t dos = servidor.rfind(':'); dos != std::string_view::npos) {
        puerto = servidor.substr(dos + 1);
        servidor = servidor.substr(0, dos);
    }
    if (servidor.find(',') != std::string_view::npos)
        return Error("la dirección lleva un solo servidor: " + std::string(servidor));
    const auto s = Decodificar(servidor);
    if (!s) return Error("código % mal formado en la dirección: " + std::string(servidor));
    d.servidor = *s;
    if (!puerto.empty() && !PuertoValido(puerto, d.puerto)) return Error(ErrorPuerto(puerto));
    const auto b = Decodificar(camino);
    if (!b || b->find('/') != std::string::npos)
        return Error("nombre de base de datos no válido en la dirección: " + std::string(camino));
    d.base = *b;

    while (!consulta.empty()) {
        const size_t y = consulta.find('&');
        const std::string_view par = consulta.substr(0, y);
        consulta.remove_prefix(y == std::string_view::npos ? consulta.size() : y + 1);
        if (par.empty()) continue;
        const size_t igual = par.find('=');
        const auto clave = Decodificar(par.substr(0, igual));
        const auto valor = igual == std::string_view::npos ? std::optional<std::string>()
                                                           : Decodificar(par.substr(igual + 1));
        if (clave && *clave == "password") return Error(std::string(kErrorClaveEnDireccion));
        if (!clave || !valor) return Error("parámetro mal escrito en la dirección: " + std::string(par));
        if (std::find(std::begin(kParametrosAdmitidos), std::end(kParametrosAdmitidos), *clave) ==
            std::end(kParametrosAdmitidos)) {
            std::string admitidos;
            for (std::string_view p : kParametrosAdmitidos)
                admitidos += (admitidos.empty() ? "" : ", ") + std::string(p);
            return Error("parámetro desconocido en la dirección: " + *clave + " (se admiten " + admitidos +
                         ")");
        }
        if (*clave == "host") {
            d.servidor = *valor;
        } else if (*clave == "user") {
            d.usuario = *valor;
        } else if (*clave == "dbname") {
            d.base = *valor;
        } else if (*clave == "port") {
            if (!PuertoValido(*valor, d.puerto)) return Error(ErrorPuerto(*valor));
        } else {
            if (*clave == "sslmode" &&
                std::find(std::begin(kModosSSL), std::end(kModosSSL), *valor) == std::end(kModosSSL))
                return Error("sslmode no válido en la dirección: " + *valor +
                             " (disable, allow, prefer, require, verify-ca o verify-full)");
            if (EsEspera(*clave) && (!SoloCifras(*valor) || valor->size() > 6))
                return Error(*clave + " no válido en la dirección: " + *valor + " (segundos)");
            if (!ValorLimpio(*valor))
                return Error("valor no admitido en la dirección: " + *clave + "=" + *valor);
            d.parametros.emplace_back(*clave, *valor);
        }
    }
    return {d, {}};
}

Esperas EsperasDe(const Direccion& d) {
    Esperas e;
    for (const auto& [clave, valor] : d.parametros) {
        int* espera = clave == "connect_timeout"     ? &e.conexion
                      : clave == "statement_timeout" ? &e.orden
                      : clave == "lock_timeout"      ? &e.bloqueo
                                                     : nullptr;
        if (espera && SoloCifras(valor) && valor.size() <= 6 && std::stoi(valor) > 0)
            *espera = std::stoi(valor);
    }
    return e;
}

std::string OpcionesConexion(const Direccion& d) {
    std::string opciones;
    bool nombre = false;
    for (const auto& [clave, valor] : d.parametros) {
        if (EsEspera(clave)) continue;
        opciones += clave + "=" + valor + ";";
        nombre = nombre || clave == "application_name";
    }
    const Esperas e = EsperasDe(d);
    const auto n = [](int segundos) { return std::to_string(segundos); };
    // A connection that stops answering is noticed within a few seconds of
    // silence, and data the server does not take within the connection's
    // limit end it. The server cancels a statement or a wait for a lock past
    // its limit, and ends a session left inside a transaction as long as
    // the program waits for an answer (its locks then go with it).
    opciones += "connect_timeout=" + n(e.conexion) +
                ";keepalives=1;keepalives_idle=5;keepalives_interval=2;keepalives_count=3;tcp_user_timeout=" +
                n(e.conexion * 1000) + (nombre ? "" : ";application_name=vanta") +
                ";options='-c statement_timeout=" + n(e.orden) + "s -c lock_timeout=" + n(e.bloqueo) +
                "s -c idle_in_transaction_session_timeout=" + n(e.Respuesta()) +
                "s -c client_min_messages=error'";
    return opciones;
}

}  // namespace vanta::bd
