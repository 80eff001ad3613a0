#include "core/compilation/compilacion.h"

#include "core/compilation/comprobaciones.h"
#include "core/core/error_ejecucion.h"
#include "core/core/limite_fallos.h"
#include "core/files/compilado.h"

namespace vadro {

InformeErrores ComprobarModelo(const Modelo& modelo) {
    InformeErrores informe;
    ComprobarExistenciaEtapas(modelo, informe);
    ComprobarExistenciaComponentes(modelo, informe);
    ComprobarNombresRepetidosComponentes(modelo, informe);
    ComprobarExistenciaRequerimientos(modelo, informe);
    ComprobarNombresRepetidosRequerimientos(modelo, informe);
    ComprobarPesosNulos(modelo, informe);
    ComprobarConsistencia(modelo, informe);
    ComprobarFuncionValor(modelo, informe);
    ComprobarArbolIncompleto(modelo, informe);
    informe.InsertarTotales();
    return informe;
}

InformeErrores Compilar(Modelo& modelo, const GuardarVentanasAbiertas& guardarVentanas) {
    if (guardarVentanas) {
        guardarVentanas(modelo);
    }
    return ComprobarModelo(modelo);
}

DesenlaceCompilacion Desenlace(const InformeErrores& informe) {
    if (informe.Errores() > 0) {
        return DesenlaceCompilacion::Incorrecta;
    }
    return informe.Avisos() > 0 ? DesenlaceCompilacion::CorrectaConAvisos
                                : DesenlaceCompilacion::Correcta;
}

bool PermiteCompilado(DesenlaceCompilacion desenlace) {
    return desenlace != DesenlaceCompilacion::Incorrecta;
}

Mensaje MensajeDesenlace(DesenlaceCompilacion desenlace) {
    if (!PermiteCompilado(desenlace)) {
        return {"El modelo contiene errores.\n"
                "Corríjalos para poder crear el archivo utilizable por el módulo VADRO USUARIO.",
                Botones::Aceptar, Icono::Informacion, "VADRO PROGRAMADOR: compilación incorrecta"};
    }
    return {"El modelo no contiene errores.\n"
            "Desea crear el archivo compilado (*.vdc) utilizable por el módulo VADRO USUARIO?",
            Botones::SiNo, Icono::Pregunta, "VADRO PROGRAMADOR: compilación correcta"};
}

bool PreguntarCrearCompilado(const InformeErrores& informe) {
    const DesenlaceCompilacion desenlace = Desenlace(informe);
    const Mensaje mensaje = MensajeDesenlace(desenlace);
    const Respuesta respuesta =
        MsgBox(mensaje.texto, mensaje.botones, mensaje.icono, mensaje.titulo);
    return PermiteCompilado(desenlace) && respuesta == Respuesta::Si;
}

Mensaje MensajeFalloCompilado(int numero, const std::string& descripcion) {
    return {TextoFallo(numero, descripcion), Botones::Aceptar, Icono::Ninguno, "VADRO PROGRAMADOR"};
}

bool ConcluirCompilacion(Sesion& sesion, const InformeErrores& informe) {
    if (!PreguntarCrearCompilado(informe)) {
        return false;
    }
    try {
        return EscribirCompilado(sesion);
    } catch (const ErrorEjecucion& error) {
        if (error.Numero() != ErrCancelar) {
            const Mensaje caja = MensajeFalloCompilado(error.Numero(), error.Descripcion());
            MsgBox(caja.texto, caja.botones, caja.icono, caja.titulo);
        }
    }
    return false;
}

} // namespace vadro
