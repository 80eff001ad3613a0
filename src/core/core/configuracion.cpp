#include "core/core/configuracion.h"

#include "core/core/archivos.h"
#include "core/core/ini.h"

namespace vadro {

namespace {

const std::string kFalta = "-1";

std::string LeerDirectorio(const Sesion& sesion, const std::string& clave) {
    const std::string valor =
        LeerIni(kSeccionDirectorios, clave, RutaConfiguracion(sesion)).Texto();
    return valor == kFalta ? std::string() : valor;
}

// A display key is true unless it says false; a true value is written back, so that the file
// of a first start holds the key.
bool LeerMostrar(const Sesion& sesion, const std::string& clave) {
    const std::string valor = LeerIni(kSeccionGeneral, clave, RutaConfiguracion(sesion)).Texto();
    if (!BooleanoConfiguracion(valor)) {
        return false;
    }
    EscribirConfiguracion(sesion, kSeccionGeneral, clave, TextoBooleano(true));
    return true;
}

} // namespace

std::string RutaConfiguracion(const Sesion& sesion) {
    return UnirRuta(sesion.DirectorioPrograma, "Config.ini");
}

std::string TextoBooleano(bool valor) {
    return valor ? "Verdadero" : "Falso";
}

bool BooleanoConfiguracion(const std::string& texto) {
    return texto != "False" && texto != "Falso";
}

void CargarConfiguracion(Sesion& sesion) {
    Configuracion& c = sesion.configuracion;
    c.DirProyectos = LeerDirectorio(sesion, kClaveProyectos);
    c.DirModelos = LeerDirectorio(sesion, kClaveModelos);
    c.DirRequerimientos = LeerDirectorio(sesion, kClaveRequerimientos);
    c.DirComponentes = LeerDirectorio(sesion, kClaveComponentes);
    c.DirEtapas = LeerDirectorio(sesion, kClaveEtapas);
    c.DirFuncionValor = LeerDirectorio(sesion, kClaveFuncionValor);
    c.MostrarInicio = LeerMostrar(sesion, kClaveMostrarInicio);
    c.MostrarAvisoBeta = LeerMostrar(sesion, kClaveMostrarAvisoBeta);

    const double tamano =
        LeerIni(kSeccionGeneral, kClaveTamanoFuente, RutaConfiguracion(sesion)).Numero();
    if (tamano == -1) {
        c.TamanoFuente = 0;
        EscribirConfiguracion(sesion, kSeccionGeneral, kClaveTamanoFuente, "0");
    } else {
        c.TamanoFuente = AEntero32(tamano);
    }
}

void EscribirConfiguracion(const Sesion& sesion, const std::string& seccion,
                           const std::string& clave, const std::string& valor) {
    EscribirIni(seccion, clave, valor, RutaConfiguracion(sesion));
}

void GuardarMostrarInicio(Sesion& sesion, bool mostrar) {
    sesion.configuracion.MostrarInicio = mostrar;
    EscribirConfiguracion(sesion, kSeccionGeneral, kClaveMostrarInicio, TextoBooleano(mostrar));
}

void GuardarMostrarAvisoBeta(Sesion& sesion, bool mostrar) {
    sesion.configuracion.MostrarAvisoBeta = mostrar;
    EscribirConfiguracion(sesion, kSeccionGeneral, kClaveMostrarAvisoBeta, TextoBooleano(mostrar));
}

void GuardarTamanoFuente(Sesion& sesion, int32_t tamano) {
    sesion.configuracion.TamanoFuente = tamano;
    EscribirConfiguracion(sesion, kSeccionGeneral, kClaveTamanoFuente, std::to_string(tamano));
}

} // namespace vadro
