#include "core/files/seccion_requerimientos.h"

#include "core/core/error_ejecucion.h"
#include "core/core/mensajes.h"
#include "core/files/formato.h"
#include "core/files/lectura_seccion.h"
#include "core/files/seccion_funcion.h"

namespace vadro {

namespace {

// How many children a count asks for: none for the empty text.
int Hijos(const ValorLibre& cuenta) {
    return cuenta.EsVacio() ? 0 : cuenta.Cuenta();
}

std::string Numero(int n) {
    return std::to_string(n);
}

// A position key: the level's letter and the node's number in front of its parent's key.
std::string ClavePosicion(char letra, int n, const std::string& padre = {}) {
    std::string clave(1, letra);
    clave += std::to_string(n);
    clave += padre;
    return clave;
}

void MostrarFalloGuardado() {
    MsgBox("Error al guardar el árbol de requerimientos.", Botones::Aceptar, Icono::Critico,
           "VADRO: Error ");
}

// ---- Writing

class EscritorRequerimientos {
public:
    EscritorRequerimientos(ArchivoSalida& salida, const std::string& indice)
        : salida_(salida), indice_(indice) {}

    void Escribir(Modelo& modelo) {
        salida_.Escribir(indice_ + "*****REQUERIMIENTOS*****");
        const ValorLibre& cuenta = modelo.NumRequerimientos;
        if (cuenta.EsVacio() || cuenta.Numero() == 0) {
            salida_.Escribir(indice_ + "REQ_NUMR = 0");
            return;
        }
        salida_.Escribir(indice_ + "REQ_NUMR", FormaValor(cuenta));
        const int requerimientos = Hijos(cuenta);
        for (int r = 1; r <= requerimientos; ++r) {
            EscribirRequerimiento(modelo.Requerimientos(r), ClavePosicion('R', r), requerimientos);
        }
    }

private:
    void EscribirRequerimiento(NodoRequerimiento& nodo, const std::string& clave, int hermanos) {
        EscribirCabeza(nodo, clave, hermanos);
        EscribirCuenta(clave, "NUMC", nodo.NumCriterios);
        const int criterios = Hijos(nodo.NumCriterios);
        for (int c = 1; c <= criterios; ++c) {
            EscribirCriterio(nodo.Criterios(c), ClavePosicion('C', c, clave), criterios);
        }
    }

    // A criterion's direct indicators and their functions come before its subcriteria.
    void EscribirCriterio(NodoCriterio& nodo, const std::string& clave, int hermanos) {
        EscribirCabeza(nodo, clave, hermanos);
        EscribirIndicadores(nodo.NumIndicadores, nodo.Indicadores, clave);
        EscribirCuenta(clave, "NUMS", nodo.NumSubcriterios);
        const int subcriterios = Hijos(nodo.NumSubcriterios);
        for (int s = 1; s <= subcriterios; ++s) {
            NodoSubcriterio& sub = nodo.Subcriterios(s);
            const std::string claveSub = ClavePosicion('S', s, clave);
            EscribirCabeza(sub, claveSub, subcriterios);
            EscribirIndicadores(sub.NumIndicadores, sub.Indicadores, claveSub);
        }
    }

    void EscribirIndicadores(const ValorLibre& cuenta, Arreglo<NodoIndicador>& indicadores,
                             const std::string& padre) {
        EscribirCuenta(padre, "NUMI", cuenta);
        const int total = Hijos(cuenta);
        for (int i = 1; i <= total; ++i) {
            NodoIndicador& nodo = indicadores(i);
            const std::string clave = ClavePosicion('I', i, padre);
            EscribirCabeza(nodo, clave, total);
            nodo.Funcion.Clave = clave;
            GuardarFuncionValor(nodo.Funcion, salida_, indice_);
        }
    }

    void EscribirCabeza(CabeceraNodo& nodo, const std::string& clave, int hermanos) {
        const std::string prefijo = Prefijo(clave);
        salida_.Escribir(prefijo + "NOM", nodo.Nombre);
        salida_.Escribir(prefijo + "DSC", nodo.Descripcion);
        salida_.Escribir(prefijo + "PSO", NumeroEscalado(nodo.Peso));
        for (int j = 1; j <= hermanos; ++j) {
            salida_.Escribir(prefijo + "STY" + Numero(j), NumeroEscalado(nodo.Saaty(j)));
        }
        salida_.Escribir(prefijo + "DIR", NumeroEscalado(nodo.Directo));
        if (nodo.Calculo != CalculoDirecto) {
            nodo.Calculo = CalculoSaaty;
        }
        salida_.Escribir(prefijo + "CAL", FormaImpresa(nodo.Calculo));
    }

    // A count as the record holds it; the empty text leaves the line ending after " = ".
    void EscribirCuenta(const std::string& clave, const char* sufijo, const ValorLibre& cuenta) {
        salida_.Escribir(Prefijo(clave) + sufijo, FormaValor(cuenta));
    }

    std::string Prefijo(const std::string& clave) const { return indice_ + "REQ_" + clave + "_"; }

    ArchivoSalida& salida_;
    const std::string& indice_;
};

// ---- Reading

class LectorRequerimientos {
public:
    explicit LectorRequerimientos(LecturaSeccion& lectura) : l_(lectura) {}

    // With no count or a count of 0 or less the array keeps what it held.
    void Leer(Modelo& modelo) {
        modelo.ConSubcriterios = false;
        modelo.NumRequerimientos = LeerCuenta(l_.Buscar("REQ_NUMR"));
        if (!HayElementos(modelo.NumRequerimientos)) {
            return;
        }
        const int requerimientos = modelo.NumRequerimientos.Cuenta();
        l_.Dimensionar(modelo.Requerimientos, requerimientos);
        for (int r = 1; r <= requerimientos; ++r) {
            LeerRequerimiento(modelo, modelo.Requerimientos(r), ClavePosicion('R', r),
                              requerimientos);
        }
    }

private:
    void LeerRequerimiento(Modelo& modelo, NodoRequerimiento& nodo, const std::string& clave,
                           int hermanos) {
        LeerCabeza(nodo, clave, hermanos);
        nodo.NumCriterios = LeerCuentaDe(clave, "NUMC");
        if (!HayElementos(nodo.NumCriterios)) {
            return;
        }
        const int criterios = nodo.NumCriterios.Cuenta();
        l_.Dimensionar(nodo.Criterios, criterios);
        for (int c = 1; c <= criterios; ++c) {
            LeerCriterio(modelo, nodo.Criterios(c), ClavePosicion('C', c, clave), criterios);
        }
    }

    void LeerCriterio(Modelo& modelo, NodoCriterio& nodo, const std::string& clave, int hermanos) {
        LeerCabeza(nodo, clave, hermanos);
        nodo.NumIndicadores = LeerCuentaDe(clave, "NUMI");
        LeerIndicadores(nodo.NumIndicadores, nodo.Indicadores, clave);
        nodo.NumSubcriterios = LeerCuentaDe(clave, "NUMS");
        if (!HayElementos(nodo.NumSubcriterios)) {
            return;
        }
        const int subcriterios = nodo.NumSubcriterios.Cuenta();
        l_.DimensionarConservando(nodo.Subcriterios, subcriterios);
        modelo.ConSubcriterios = true;
        for (int s = 1; s <= subcriterios; ++s) {
            NodoSubcriterio& sub = nodo.Subcriterios(s);
            const std::string claveSub = ClavePosicion('S', s, clave);
            LeerCabeza(sub, claveSub, subcriterios);
            sub.NumIndicadores = LeerCuentaDe(claveSub, "NUMI");
            LeerIndicadores(sub.NumIndicadores, sub.Indicadores, claveSub);
        }
    }

    void LeerIndicadores(const ValorLibre& cuenta, Arreglo<NodoIndicador>& indicadores,
                         const std::string& padre) {
        if (!HayElementos(cuenta)) {
            return;
        }
        const int total = cuenta.Cuenta();
        l_.Dimensionar(indicadores, total);
        for (int i = 1; i <= total; ++i) {
            NodoIndicador& nodo = indicadores(i);
            const std::string clave = ClavePosicion('I', i, padre);
            LeerCabeza(nodo, clave, total);
            nodo.Funcion.Clave = clave;
            LeerFuncionValor(nodo.Funcion, l_);
        }
    }

    void LeerCabeza(CabeceraNodo& nodo, const std::string& clave, int hermanos) {
        const std::string prefijo = "REQ_" + clave + "_";
        nodo.Nombre = l_.Buscar(prefijo + "NOM").Texto();
        nodo.Descripcion = l_.Buscar(prefijo + "DSC").Texto();
        nodo.Peso = LeerEscalado(l_.Buscar(prefijo + "PSO"));
        nodo.Clave = clave;
        l_.Dimensionar(nodo.Saaty, hermanos);
        for (int j = 1; j <= hermanos; ++j) {
            nodo.Saaty(j) = LeerEscalado(l_.Buscar(prefijo + "STY" + Numero(j)));
        }
        nodo.Directo = LeerEscalado(l_.Buscar(prefijo + "DIR"));
        const ValorLibre calculo = l_.Buscar(prefijo + "CAL");
        nodo.Calculo = calculo.EsVacio() ? CalculoSaaty : AEntero32(calculo);
    }

    ValorLibre LeerCuentaDe(const std::string& clave, const char* sufijo) {
        return LeerCuenta(l_.Buscar("REQ_" + clave + "_" + sufijo));
    }

    LecturaSeccion& l_;
};

} // namespace

bool GuardarRequerimientos(Modelo& modelo, ArchivoSalida& salida, const std::string& indice) {
    try {
        EscritorRequerimientos(salida, indice).Escribir(modelo);
        return true;
    } catch (const ErrorEjecucion& error) {
        // A save the user abandoned in a function's retry box writes nothing at all; nor does
        // one with a number that the reader could not read back.
        if (error.Numero() == ErrCancelar || error.Numero() == ErrDesbordamiento) {
            throw;
        }
        MostrarFalloGuardado();
        return false;
    }
}

void GuardarRequerimientos(Modelo& modelo, const std::string& ruta, bool anadir,
                           const std::string& indice) {
    ArchivoSalida salida;
    const bool completo = GuardarRequerimientos(modelo, salida, indice);
    // After a failure the file still gets the lines as far as they went.
    try {
        GuardarSeccion(ruta, salida, anadir);
    } catch (const ErrorEjecucion&) {
        if (completo) {
            MostrarFalloGuardado();
        }
    }
}

void CargarRequerimientos(Modelo& modelo, ArchivoEntrada& archivo, const std::string& indice) {
    LecturaSeccion lectura(archivo, indice);
    LectorRequerimientos(lectura).Leer(modelo);
}

void CargarRequerimientos(Modelo& modelo, const std::string& ruta, const std::string& indice) {
    ArchivoPropio archivo(ruta);
    CargarRequerimientos(modelo, *archivo, indice);
}

} // namespace vadro
