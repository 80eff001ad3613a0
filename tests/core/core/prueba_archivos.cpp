#include "core/core/archivos.h"
#include "core/core/codigo_pagina.h"
#include "core/core/directorio_programa.h"
#include "core/core/error_ejecucion.h"
#include "soporte/errores.h"
#include "soporte/prueba_sesion.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace vadro {
namespace {

namespace fs = std::filesystem;
using pruebas::NumeroDeError;

class Archivos : public pruebas::PruebaSesion {};

TEST(CodigoPagina, AllCodesRoundTripThroughUtf8) {
    std::string todos;
    for (int c = 0; c < 256; ++c) {
        todos += static_cast<char>(c);
    }
    const std::string utf8 = DesdeOchoBits(todos);
    EXPECT_EQ(AOchoBits(utf8), todos);
    EXPECT_EQ(DesdeOchoBits("\x80\xF1\x9F"), "€ñŸ");
    EXPECT_EQ(AOchoBits("Año €"), "A\xF1o \x80");
    EXPECT_EQ(AOchoBits("ő✓"), "??") << "characters the page lacks";
    EXPECT_EQ(AOchoBits("\xC3"), "?") << "a broken sequence";
}

TEST(Lineas, EveryLineEndCountsOnce) {
    using V = std::vector<std::string>;
    EXPECT_EQ(DividirLineas("a\r\nb\rc\nd"), (V{"a", "b", "c", "d"}));
    EXPECT_EQ(DividirLineas("a\r\n\r\n"), (V{"a", ""}));
    EXPECT_EQ(DividirLineas("\n\r"), (V{"", ""}));
    EXPECT_EQ(DividirLineas(""), V{});
    EXPECT_EQ(UnirLineas({"a", ""}), "a\r\n\r\n");
}

TEST_F(Archivos, AFailedWriteIsReportedAndLeavesThePreviousFileIntact) {
    const std::string ruta = Ruta("modelo.vdm");
    Escribir(ruta, "antes");
    sesion().servicios.durante_escritura = [](const std::string&) {
        throw ErrorEjecucion(ErrDiscoLleno);
    };
    EXPECT_EQ(NumeroDeError([&] { EscribirArchivo(ruta, "despues"); }), ErrDiscoLleno);
    EXPECT_EQ(Contenido(ruta), "antes");
    sesion().servicios.durante_escritura = nullptr;
    EscribirArchivo(ruta, "despues");
    EXPECT_EQ(Contenido(ruta), "despues");
    EXPECT_EQ(std::distance(fs::directory_iterator(Directorio()), {}), 1)
        << "no temporary file stays behind";
}

TEST_F(Archivos, PathsAcceptBothSeparators) {
    EXPECT_EQ(NormalizarRuta("a\\b/c"), "a/b/c");
    EXPECT_EQ(UnirRuta("a\\b", "Config.ini"), "a/b/Config.ini");
    EXPECT_EQ(UnirRuta("a/", "x"), "a/x");
    Escribir(Ruta("x.txt"), "1");
    EXPECT_TRUE(ExisteArchivo(Directorio() + "\\x.txt"));
}

TEST_F(Archivos, TheProgramDirectoryFollowsVadroDirThenTheExecutableFolder) {
    EXPECT_EQ(ResolverDirectorioPrograma("/ninguna"), Directorio());
    ::unsetenv("VADRO_DIR");
    const std::string ejecutable = Ruta("bin");
    fs::create_directories(ejecutable);
    EXPECT_EQ(ResolverDirectorioPrograma(ejecutable), ejecutable);
    ::setenv("HOME", Directorio().c_str(), 1);
    ::unsetenv("XDG_DATA_HOME");
    const std::string datos = ResolverDirectorioPrograma(Ruta("no-existe"));
    EXPECT_EQ(datos, Ruta(".local/share/VADRO Programador"));
    EXPECT_TRUE(fs::is_directory(datos));
}

// What saves promise, for any user: the checks work on permission bits, so they hold as root.
TEST_F(Archivos, ASaveKeepsPermissionsFollowsLinksAndRefusesReadOnlyTargets) {
    const std::string ruta = Ruta("m.vdm");
    Escribir(ruta, "antes");
    fs::permissions(ruta, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    EscribirArchivo(ruta, "despues");
    EXPECT_EQ(Contenido(ruta), "despues");
    EXPECT_EQ(fs::status(ruta).permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);

    const std::string enlace = Ruta("enlace.vdm");
    fs::create_symlink(ruta, enlace);
    EscribirArchivo(enlace, "por el enlace");
    EXPECT_TRUE(fs::is_symlink(enlace)) << "the link stays a link";
    EXPECT_EQ(Contenido(ruta), "por el enlace");

    fs::permissions(ruta, fs::perms::owner_read);
    EXPECT_EQ(NumeroDeError([&] { EscribirArchivo(ruta, "no"); }), ErrPermiso);
    EXPECT_EQ(NumeroDeError([&] { AnadirArchivo(ruta, "no"); }), ErrPermiso);
    EXPECT_EQ(Contenido(ruta), "por el enlace");
    fs::permissions(ruta, fs::perms::owner_all);
    EXPECT_EQ(std::distance(fs::directory_iterator(Directorio()), {}), 2)
        << "no temporary file stays behind";
}

TEST_F(Archivos, AReadOnlyFolderIsAPermissionFailure) {
    if (::geteuid() == 0) {
        GTEST_SKIP() << "root writes into any folder";
    }
    fs::create_directory(Ruta("cerrada"));
    fs::permissions(Ruta("cerrada"), fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_EQ(NumeroDeError([&] { EscribirArchivo(Ruta("cerrada/m.vdm"), "x"); }), ErrPermiso);
    fs::permissions(Ruta("cerrada"), fs::perms::owner_all);
}

TEST_F(Archivos, WhatIsNoRegularFileOrTooLargeIsRefusedBeforeItIsRead) {
    fs::create_directory(Ruta("carpeta"));
    ASSERT_EQ(::mkfifo(Ruta("tubo").c_str(), 0600), 0);
    Escribir(Ruta("enorme"), "");
    fs::resize_file(Ruta("enorme"), kLargoMaximoArchivo + 1); // sparse: nothing is written
    struct Caso {
        std::string ruta;
        int error;
    };
    for (const Caso& caso : std::vector<Caso>{{"/dev/zero", ErrAccesoRuta},
                                              {Ruta("carpeta"), ErrAccesoRuta},
                                              {Ruta("tubo"), ErrAccesoRuta},
                                              {Ruta("enorme"), ErrMemoria},
                                              {Ruta("no-esta"), ErrArchivoNoEncontrado}}) {
        EXPECT_EQ(NumeroDeError([&] { (void)LeerArchivo(caso.ruta); }), caso.error) << caso.ruta;
    }
    EXPECT_EQ(NumeroDeError([&] { EscribirArchivo(Ruta("carpeta"), "x"); }), ErrAccesoRuta);
    EXPECT_EQ(NumeroDeError([&] { EscribirArchivo(Ruta("no-existe/m.vdm"), "x"); }),
              ErrRutaNoEncontrada);
}

} // namespace
} // namespace vadro
