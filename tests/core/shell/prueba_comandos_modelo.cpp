#include "core/core/archivos.h"
#include "core/core/error_ejecucion.h"
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

    // A model that was worked on: it has a name, a file and unsaved changes.
    void ModeloModificado(const std::string& archivo) {
        modelo().Nombre = "Depuradora";
        modelo().Archivo = archivo;
        modelo().Modificado = true;
    }

    const std::string tituloGuardar = "Guardar modelo como...";
};

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
    m.ConSubcriterios = true;
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
    EXPECT_EQ(m.NumRequerimientos, ValorLibre(0));
    EXPECT_EQ(m.NumComponentes, ValorLibre(0));
    EXPECT_EQ(m.NumEtapas, ValorLibre(0));
    EXPECT_FALSE(m.ConSubcriterios);
    EXPECT_EQ(m.EjeX, "Tiempo");
    EXPECT_EQ(m.EjeY, "Requerimientos");
    EXPECT_EQ(m.EjeZ, "Componentes");
    ASSERT_EQ(m.Requerimientos.Cota(), 1);
    EXPECT_EQ(m.Requerimientos(1), NodoRequerimiento{}) << "one empty element, made anew";
    ASSERT_EQ(m.Componentes.Cota(), 1);
    EXPECT_EQ(m.Componentes(1), Componente{});
    ASSERT_EQ(m.Etapas.Cota(), 1);
    EXPECT_EQ(m.Etapas(1), "");
}

TEST_F(ComandosModelo, InicializarModeloLeavesWhatItDoesNotName) {
    Modelo& m = modelo();
    m.Modificado = true;
    m.Compilado = true;
    m.PermisoUsuarioVer = true;
    m.ArchivoCompilado = "/x/m.vdc";
    InicializarModelo(m);
    EXPECT_TRUE(m.Modificado);
    EXPECT_TRUE(m.Compilado);
    EXPECT_TRUE(m.PermisoUsuarioVer);
    EXPECT_EQ(m.ArchivoCompilado, "/x/m.vdc");
}

TEST_F(ComandosModelo, TheSaveDialogOfAModelNeverSaved) {
    const PeticionDialogo p = PeticionGuardarModelo("", Directorio(), false);
    EXPECT_EQ(p.tipo, TipoDialogo::Guardar);
    EXPECT_EQ(p.titulo, "Guardar modelo como...");
    EXPECT_EQ(p.filtro, "Archivos de modelo (*.vdm)|*.vdm");
    EXPECT_EQ(p.flags, 6) << "hide read-only, confirm overwrite";
    EXPECT_EQ(p.directorioInicial, UnirRuta(Directorio(), "Archivos de proyecto"));
    EXPECT_EQ(p.nombreArchivo, "");
    EXPECT_EQ(PeticionGuardarModelo("", Directorio(), true).directorioInicial, p.directorioInicial);
}

TEST_F(ComandosModelo, SaveProposesFolderAndNameApartAndSaveAsTheWholePath) {
    const std::string ruta = UnirRuta(UnirRuta(Directorio(), "modelos"), "planta.vdc");
    const PeticionDialogo guardar = PeticionGuardarModelo(ruta, Directorio(), false);
    EXPECT_EQ(guardar.directorioInicial, UnirRuta(Directorio(), "modelos"));
    EXPECT_EQ(guardar.nombreArchivo, "planta.vdc");
    const PeticionDialogo como = PeticionGuardarModelo(ruta, Directorio(), true);
    EXPECT_EQ(como.nombreArchivo, ruta);
    EXPECT_EQ(como.directorioInicial, "");
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
    struct Caso {
        bool cerrar;
        bool modificado;
        const char* archivo;
        Respuesta respuesta;
    };
    const Caso casos[] = {
        {false, false, "m.vdm", Respuesta::Aceptar},
        {false, true, "m.vdm", Respuesta::No},
        {false, true, "", Respuesta::Si},
        {false, true, "m.vdm", Respuesta::Si},
        {false, true, "m.vdm", Respuesta::Cancelar},
        {true, false, "m.vdm", Respuesta::Aceptar},
        {true, true, "", Respuesta::Si},
        {true, true, "m.vdm", Respuesta::Cancelar},
    };
    pruebas::Acta acta;
    for (const Caso& c : casos) {
        BorrarArchivo(Ruta("m.vdm"));
        ModeloModificado(*c.archivo ? Ruta(c.archivo) : "");
        modelo().Modificado = c.modificado;
        pruebas::GuionDialogos dialogos; // strict: only the closing's save-as is expected
        if (c.cerrar && !*c.archivo) {
            dialogos.Cancelar(tituloGuardar);
        }
        acta.respuestas = {c.respuesta};
        const bool sigue =
            c.cerrar ? GuardarAlCerrar(modelo(), Directorio()) : GuardarAntesDeNuevo(modelo());
        acta.Fila(std::string(c.cerrar ? "close" : "new") + (c.modificado ? ", modified" : "") +
                      ", file '" + c.archivo + "'",
                  std::string(sigue ? "goes on" : "stops") +
                      (ExisteArchivo(Ruta("m.vdm")) ? ", saved" : "") +
                      (modelo().Modificado ? ", still modified" : ""));
    }
    acta.Comparar("comandos/guardar_nuevo_cerrar.txt");
}

} // namespace
} // namespace vadro
