#include "core/core/archivos.h"
#include "core/core/error_ejecucion.h"
#include "core/core/version.h"
#include "core/shell/comandos_modelo.h"
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

    const std::string preguntaCierre = "Desea guardar los cambios realizados en el modelo actual?";
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

TEST_F(ComandosModelo, NuevoAsksOnlyAboutAModifiedModel) {
    EXPECT_TRUE(GuardarAntesDeNuevo(modelo()));
    EXPECT_TRUE(mensajes.Vistos().empty());
}

TEST_F(ComandosModelo, NoAtTheQuestionOfNuevoGoesOnWithoutSaving) {
    const std::string ruta = Ruta("m.vdm");
    ModeloModificado(ruta);
    mensajes.Esperar("VADRO PROGRAMADOR: Nuevo modelo", "Desea guardar el modelo activo?",
                     Respuesta::No);
    EXPECT_TRUE(GuardarAntesDeNuevo(modelo()));
    EXPECT_FALSE(ExisteArchivo(ruta));
}

TEST_F(ComandosModelo, YesAtNuevoOnANeverSavedModelAsksForNoName) {
    ModeloModificado("");
    pruebas::GuionDialogos dialogos; // strict: a dialog would fail the test
    mensajes.Esperar("VADRO PROGRAMADOR: Nuevo modelo", "Desea guardar el modelo activo?",
                     Respuesta::Si);
    // The file layer reports the empty path.
    mensajes.Esperar("VADRO: Error ",
                     "Error 52 al guardar el modelo.\n\r" + DescripcionError(ErrNombreArchivo));
    EXPECT_TRUE(GuardarAntesDeNuevo(modelo()));
    EXPECT_TRUE(modelo().Modificado) << "a failed save keeps the changes marked";
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

TEST_F(ComandosModelo, ClosingAnUnmodifiedModelAsksNothing) {
    modelo().Archivo = Ruta("m.vdm");
    EXPECT_TRUE(GuardarAlCerrar(modelo(), Directorio()));
    EXPECT_TRUE(mensajes.Vistos().empty());
    EXPECT_FALSE(ExisteArchivo(Ruta("m.vdm")));
}

TEST_F(ComandosModelo, ACancelledNameAtClosingStillLetsTheWindowClose) {
    ModeloModificado("");
    pruebas::GuionDialogos dialogos;
    dialogos.Cancelar(tituloGuardar);
    mensajes.Esperar("VADRO PROGRAMADOR", preguntaCierre, Respuesta::Si);
    EXPECT_TRUE(GuardarAlCerrar(modelo(), Directorio()));
    EXPECT_TRUE(modelo().Modificado);
}

} // namespace
} // namespace vadro
