#include "core/core/archivos.h"
#include "core/core/version.h"
#include "core/shell/comandos_modelo.h"
#include "soporte/acta.h"
#include "soporte/componentes_etapas.h"
#include "soporte/guion_dialogos.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

namespace vadro {
namespace {

class ComandosModelo : public pruebas::PruebaSesion {
protected:
    Modelo& modelo() { return sesion().modelo; }
};

// The new model keeps only what InicializarModelo does not name: its state and compiled file.
TEST_F(ComandosModelo, InicializarModeloBlanksEverythingTheNewModelDoesNotKeep) {
    Modelo& m = modelo();
    const std::vector<std::string*> textos = {&m.Archivo,    &m.Nombre,     &m.Fecha,
                                              &m.Autor,      &m.Version,    &m.Localizacion,
                                              &m.Referencia, &m.Descripcion};
    for (std::string* campo : textos) {
        *campo = "viejo";
    }
    m.Aplicacion = "0.9.1";
    m.EjeX = m.EjeY = m.EjeZ = "X";
    m.ConSubcriterios = m.Modificado = m.Compilado = m.PermisoUsuarioVer = true;
    m.ArchivoCompilado = "/x/m.vdc";
    m.NumRequerimientos = 2;
    m.Requerimientos.Redimensionar(2);
    m.Requerimientos(1).Nombre = "viejo";
    pruebas::PonerComponentes(m, {{"viejo", {"viejo"}}});
    pruebas::PonerEtapas(m, {"viejo", "", ""});

    InicializarModelo(m);

    for (const std::string* campo : textos) {
        EXPECT_EQ(*campo, "");
    }
    EXPECT_EQ(m.Aplicacion, VersionPrograma());
    EXPECT_EQ(std::tuple(m.NumRequerimientos, m.NumComponentes, m.NumEtapas),
              std::tuple(ValorLibre(0), ValorLibre(0), ValorLibre(0)));
    EXPECT_EQ(std::tuple(m.EjeX, m.EjeY, m.EjeZ),
              std::tuple("Tiempo", "Requerimientos", "Componentes"));
    EXPECT_EQ(std::tuple(m.ConSubcriterios, m.Modificado, m.Compilado, m.PermisoUsuarioVer),
              std::tuple(false, true, true, true));
    EXPECT_EQ(m.ArchivoCompilado, "/x/m.vdc");
    ASSERT_EQ(m.Requerimientos.Cota(), 1);
    EXPECT_EQ(m.Requerimientos(1), NodoRequerimiento{}) << "one empty element, made anew";
    ASSERT_EQ(m.Componentes.Cota(), 1);
    EXPECT_EQ(m.Componentes(1), Componente{});
    ASSERT_EQ(m.Etapas.Cota(), 1);
    EXPECT_EQ(m.Etapas(1), "");
}

// Save proposes the folder and the name apart, a model never saved in the projects' folder;
// Save as proposes the whole path.
TEST_F(ComandosModelo, TheSaveDialog) {
    const PeticionDialogo p = PeticionGuardarModelo("", Directorio(), false);
    EXPECT_EQ(p.tipo, TipoDialogo::Guardar);
    EXPECT_EQ(p.titulo, "Guardar modelo como...");
    EXPECT_EQ(p.filtro, "Archivos de modelo (*.vdm)|*.vdm");
    EXPECT_EQ(p.flags, 6) << "hide read-only, confirm overwrite";
    EXPECT_EQ(std::pair(p.directorioInicial, p.nombreArchivo),
              std::pair(UnirRuta(Directorio(), "Archivos de proyecto"), std::string()));
    EXPECT_EQ(PeticionGuardarModelo("", Directorio(), true).directorioInicial, p.directorioInicial);
    const std::string ruta = UnirRuta(UnirRuta(Directorio(), "modelos"), "planta.vdc");
    const PeticionDialogo guardar = PeticionGuardarModelo(ruta, Directorio(), false);
    EXPECT_EQ(std::pair(guardar.directorioInicial, guardar.nombreArchivo),
              std::pair(UnirRuta(Directorio(), "modelos"), std::string("planta.vdc")));
    const PeticionDialogo como = PeticionGuardarModelo(ruta, Directorio(), true);
    EXPECT_EQ(std::pair(como.directorioInicial, como.nombreArchivo),
              std::pair(std::string(), ruta));
}

TEST_F(ComandosModelo, OnlyANewOrACompiledFileNeedsAName) {
    EXPECT_TRUE(NecesitaNombre(""));
    EXPECT_TRUE(NecesitaNombre("/m/planta.vdc"));
    EXPECT_TRUE(NecesitaNombre("C:\\m\\PLANTA.VDC"));
    EXPECT_FALSE(NecesitaNombre("/m/planta.vdm"));
    EXPECT_FALSE(NecesitaNombre("/m/x.vdc/planta"));
    EXPECT_FALSE(NecesitaNombre("/m/planta.vdc.vdm"));
}

// Nuevo asks "Desea guardar el modelo activo?" and never for a name; closing asks its own
// question and goes through the save-as dialog when there is no file, whose cancel does not
// stop the closing.
TEST_F(ComandosModelo, TheSaveQuestionsOfNuevoAndOfClosing) {
    pruebas::Acta acta;
    // Closing or Nuevo, modified or not, the model's file, the answer.
    for (const auto& [cerrar, modificado, archivo, respuesta] :
         {std::tuple{false, false, "m.vdm", Respuesta::Aceptar},
          std::tuple{false, true, "m.vdm", Respuesta::No},
          std::tuple{false, true, "", Respuesta::Si},
          std::tuple{false, true, "m.vdm", Respuesta::Si},
          std::tuple{false, true, "m.vdm", Respuesta::Cancelar},
          std::tuple{true, false, "m.vdm", Respuesta::Aceptar},
          std::tuple{true, true, "", Respuesta::Si},
          std::tuple{true, true, "m.vdm", Respuesta::Cancelar}}) {
        BorrarArchivo(Ruta("m.vdm"));
        modelo().Nombre = "Depuradora";
        modelo().Archivo = *archivo ? Ruta(archivo) : "";
        modelo().Modificado = modificado;
        pruebas::GuionDialogos dialogos; // strict: only the closing's save-as is expected
        if (cerrar && !*archivo) {
            dialogos.Cancelar("Guardar modelo como...");
        }
        acta.respuestas = {respuesta};
        const bool sigue =
            cerrar ? GuardarAlCerrar(modelo(), Directorio()) : GuardarAntesDeNuevo(modelo());
        acta.Fila(std::string(cerrar ? "close" : "new") + (modificado ? ", modified" : "") +
                      ", file '" + archivo + "'",
                  std::string(sigue ? "goes on" : "stops") +
                      (ExisteArchivo(Ruta("m.vdm")) ? ", saved" : "") +
                      (modelo().Modificado ? ", still modified" : ""));
    }
    acta.Comparar("comandos/guardar_nuevo_cerrar.txt");
}

} // namespace
} // namespace vadro
