#include "core/core/error_ejecucion.h"
#include "core/files/busqueda_texto.h"
#include "core/files/texto_modelo.h"
#include "soporte/errores.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <random>

namespace vadro {
namespace {

// ---- The searcher over bytes, with and without its summary of blocks

// The first occurrence wholly inside [desde, hasta), by the plain library search.
std::size_t Esperado(std::string_view texto, std::string_view buscado, std::size_t desde,
                     std::size_t hasta) {
    hasta = std::min(hasta, texto.size());
    const auto donde = desde > hasta ? texto.npos : texto.substr(0, hasta).find(buscado, desde);
    return donde == texto.npos ? BuscadorTexto::kNoEncontrado : donde;
}

std::string Aleatorio(std::mt19937& azar, std::size_t largo, std::string_view letras) {
    std::string texto(largo, ' ');
    for (char& c : texto) {
        c = letras[azar() % letras.size()];
    }
    return texto;
}

TEST(BuscadorTexto, TheSummaryOfBlocksFindsWhatAPlainSearchFinds) {
    std::mt19937 azar(7);
    const std::size_t bloque = BuscadorTexto::kBloque;
    // Pieces planted across block edges, at the very start and end, and texts of a few letters
    // where every piece is in every block.
    for (int vuelta = 0; vuelta < 60; ++vuelta) {
        const std::string letras = vuelta % 3 == 0 ? "ab" : "abcdefghijklmnopqrstuvwxyz_=\n";
        std::string texto = Aleatorio(azar, bloque * (1 + vuelta % 4) + azar() % 5000, letras);
        std::string buscado(1, 'Q'); // appended: GCC 12's -Wrestrict misfires on "Q" + string
        buscado += Aleatorio(azar, 3 + azar() % 30, letras);
        buscado += 'Z';
        for (std::size_t donde : {bloque - 1, bloque - buscado.size() / 2, texto.size() / 2,
                                  texto.size() - buscado.size(), std::size_t{0}}) {
            if (azar() % 2 == 0 && donde + buscado.size() <= texto.size()) {
                texto.replace(donde, buscado.size(), buscado);
            }
        }
        BuscadorTexto plano;
        BuscadorTexto resumido;
        resumido.Resumir(texto);
        for (int k = 0; k < 40; ++k) {
            const std::string pedido = k % 4 == 0   ? Aleatorio(azar, 4 + k % 5, letras)
                                       : k % 4 == 1 ? buscado.substr(0, 3 + k % 20)
                                                    : buscado;
            const std::size_t desde = azar() % (texto.size() + 2);
            const std::size_t hasta = desde + azar() % (texto.size() + 10);
            std::size_t leidos = 0;
            const std::size_t esperado = Esperado(texto, pedido, desde, hasta);
            SCOPED_TRACE(std::to_string(vuelta) + "/" + std::to_string(k));
            EXPECT_EQ(plano.Buscar(texto, pedido, desde, hasta, leidos), esperado);
            EXPECT_EQ(resumido.Buscar(texto, pedido, desde, hasta, leidos), esperado);
        }
    }
}

TEST(BuscadorTexto, AMissingPieceSkipsTheBlocksAndTheSearcherSummarisesWhenItPays) {
    std::mt19937 azar(3);
    std::string texto;
    while (texto.size() < 64 * BuscadorTexto::kBloque) {
        texto += "FUN_I" + std::to_string(azar() % 1000) + "C1R1_XMX =  25000000 \r\n";
    }
    BuscadorTexto buscador;
    std::size_t leidos = 0;
    for (int k = 0; k < 3; ++k) {
        EXPECT_EQ(buscador.Buscar(texto, "FUN_I7C1R1_XMNS", 0, texto.size(), leidos),
                  BuscadorTexto::kNoEncontrado);
    }
    EXPECT_EQ(leidos, 3 * texto.size()) << "a plain search reads every byte";
    EXPECT_FALSE(buscador.Resumido());
    (void)buscador.Buscar(texto, "FUN_I7C1R1_XMNS", 0, texto.size(), leidos);
    EXPECT_TRUE(buscador.Resumido()) << "more than three passes build the summary";
    leidos = 0;
    EXPECT_EQ(buscador.Buscar(texto, "FUN_I7C1R1_XMNS", 0, texto.size(), leidos),
              BuscadorTexto::kNoEncontrado);
    EXPECT_LT(leidos, texto.size() / 16) << "a piece no block holds is looked for nowhere";
    leidos = 0;
    const std::size_t hallado = buscador.Buscar(texto, "FUN_I7", 0, texto.size(), leidos);
    EXPECT_EQ(hallado, texto.find("FUN_I7"));
}

// ---- BuscarValor against the rule read line by line

// The rule as the format tells it, one line at a time; gives the value, and moves `posicion`.
ValorLibre PorLineas(const std::vector<std::string>& lineas, std::size_t& posicion,
                     const std::string& clave) {
    const auto contiene = [](const std::string& linea, const std::string& texto) {
        return linea.find(texto) != std::string::npos;
    };
    const std::size_t inicio = posicion;
    if (posicion >= lineas.size()) {
        return ValorLibre();
    }
    std::string linea;
    std::optional<std::string> primera;
    while (posicion < lineas.size()) {
        linea = lineas[posicion++];
        if (!primera && contiene(linea, "=")) {
            primera = linea.substr(0, linea.find('='));
            if (!primera->empty() && primera->back() == ' ') {
                primera->pop_back();
            }
        }
        if (contiene(linea, clave)) {
            break;
        }
    }
    if (posicion >= lineas.size()) {
        posicion = 0;
        while (posicion < lineas.size()) {
            linea = lineas[posicion++];
            if (contiene(linea, clave) || contiene(linea, primera.value_or(""))) {
                break;
            }
        }
    }
    if (!contiene(linea, clave)) {
        posicion = inicio;
        return ValorLibre();
    }
    const auto igual = linea.size() < 2 ? std::string::npos : linea.rfind('=', linea.size() - 2);
    if (igual == std::string::npos) {
        return ValorLibre(std::string());
    }
    std::string valor = linea.substr(igual + 1);
    valor.erase(0, std::min(valor.find_first_not_of(' '), valor.size()));
    valor.erase(valor.find_last_not_of(' ') + 1);
    return ValorLibre(valor);
}

// Lines made of a few keys that are prefixes of each other, keys inside values, values with
// "=", lines without "=" and empty lines: where the rule has its corners.
std::vector<std::string> LineasAleatorias(std::mt19937& azar, std::size_t cuantas) {
    static const std::vector<std::string> claves = {"K1", "K10", "K2", "XK1", "A_B", "B", ""};
    std::vector<std::string> lineas;
    for (std::size_t i = 0; i < cuantas; ++i) {
        const std::string& clave = claves[azar() % claves.size()];
        switch (azar() % 6) {
        case 0:
            lineas.push_back("");
            break;
        case 1:
            lineas.push_back("*****" + clave + "*****");
            break;
        case 2:
            lineas.push_back(clave + " = v" + std::to_string(i) + " " +
                             claves[azar() % claves.size()]);
            break;
        case 3:
            lineas.push_back(clave + " = a=" + std::to_string(i) + "=");
            break;
        default:
            lineas.push_back(clave + std::to_string(azar() % 50) + " =  " + std::to_string(i) +
                             " ");
        }
    }
    return lineas;
}

TEST(BuscarValor, EverySearchAgreesWithTheRuleReadLineByLine) {
    std::mt19937 azar(11);
    static const std::vector<std::string> pedidas = {"K1",  "K10", "K2", "XK1", "A_B", "B",
                                                     "K13", "Z",   "=",  " ",   "v1",  ""};
    // Small files, and files of thousands of lines where the misses make the searcher
    // summarise its blocks.
    for (std::size_t cuantas : {0, 1, 2, 3, 5, 8, 20, 60, 4000, 9000}) {
        for (int vuelta = 0; vuelta < (cuantas > 100 ? 2 : 30); ++vuelta) {
            const std::vector<std::string> lineas = LineasAleatorias(azar, cuantas);
            ArchivoEntrada archivo(lineas);
            std::size_t posicion = 0;
            for (int k = 0; k < 300; ++k) {
                if (azar() % 5 == 0) {
                    posicion = lineas.empty() ? 0 : azar() % (lineas.size() + 1);
                    archivo.IrA(posicion);
                }
                const std::string clave = pedidas[azar() % pedidas.size()] +
                                          (azar() % 3 == 0 ? std::to_string(azar() % 60) : "");
                const ValorLibre esperado = PorLineas(lineas, posicion, clave);
                ASSERT_EQ(BuscarValor(archivo, clave), esperado)
                    << cuantas << " lines, search " << k << " for \"" << clave << "\"";
                ASSERT_EQ(archivo.Posicion(), posicion) << cuantas << " lines, search " << k;
            }
        }
    }
}

TEST(BuscarValor, ManyMissingKeysInALargeFileCostLittle) {
    // 16,000 function blocks and 2,000 keys asked for that are not there, in the order of
    // writing, as a hand-edited model asks.
    std::vector<std::string> lineas;
    for (int i = 1; i <= 16000; ++i) {
        const std::string clave = "FUN_I" + std::to_string(i % 10 + 1) + "C" +
                                  std::to_string(i / 10 % 10 + 1) + "R" +
                                  std::to_string(i / 100 + 1);
        for (const char* sufijo : {"_IND", "_XMN", "_XMX", "_RMN", "_RMX", "_TIP"}) {
            lineas.push_back(clave + sufijo + " =  25000000 ");
        }
    }
    ArchivoEntrada archivo(lineas);
    const auto antes = std::chrono::steady_clock::now();
    for (std::size_t i = 0; i < lineas.size(); i += 6) {
        const std::string clave = lineas[i].substr(0, lineas[i].find("_IND"));
        EXPECT_EQ(BuscarValor(archivo, clave + "_XMN").Texto(), "25000000");
        if (i % 48 == 0) {
            EXPECT_TRUE(BuscarValor(archivo, clave + "_XMNS").EsVacio());
            EXPECT_TRUE(BuscarValor(archivo, clave + "_XMNQ").EsVacio());
        }
        EXPECT_EQ(BuscarValor(archivo, clave + "_XMX").Texto(), "25000000");
    }
    const auto segundos =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - antes).count();
    EXPECT_LT(segundos, 5.0) << "a pass per miss would take minutes in a debug build";
}

TEST(BuscarValor, AFileThatAsksForFarMoreThanItHoldsEndsWithAClearMessage) {
    // One line of 4 MB, every piece of the keys in every block: each miss reads all of it.
    std::string enorme;
    while (enorme.size() < (std::size_t{4} << 20)) {
        enorme += "REQ_R1_STY";
    }
    ArchivoEntrada archivo({"*****MODELO*****", enorme});
    int busquedas = 0;
    std::string mensaje;
    try {
        for (; busquedas < 100000; ++busquedas) {
            (void)BuscarValor(archivo, "REQ_R1_STY" + std::to_string(busquedas) + "_");
        }
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.Numero(), ErrFinArchivo);
        mensaje = error.Descripcion();
    }
    EXPECT_EQ(mensaje, "El archivo pide muchos más valores de los que contiene: está dañado o "
                       "no es un archivo de VADRO.");
    EXPECT_GT(busquedas, 60) << "a fair number of passes is allowed";
    EXPECT_LT(busquedas, 200) << "but not one per key asked";
}

} // namespace
} // namespace vadro
