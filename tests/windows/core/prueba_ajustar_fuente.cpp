#include "windows/core/ajustar_fuente.h"
#include "windows/core/servicios_qt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QTableWidget>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace vadro {
namespace {

struct VentanaDePrueba {
    QWidget ventana;
    QLabel* etiqueta = new QLabel(QStringLiteral("l"), &ventana);
    QLineEdit* texto = new QLineEdit(&ventana);
    QComboBox* combo = new QComboBox(&ventana);
    QGroupBox* marco = new QGroupBox(&ventana);
    QPushButton* boton = new QPushButton(&ventana);
    QCheckBox* casilla = new QCheckBox(&ventana);
    QTableWidget* rejilla = new QTableWidget(&ventana);
    QTreeWidget* arbol = new QTreeWidget(&ventana);
    QListWidget* lista = new QListWidget(&ventana);
    QSlider* otro = new QSlider(&ventana);

    std::vector<QWidget*> DeLaTabla() const {
        return {etiqueta, texto, combo, marco, boton, casilla, rejilla, arbol, lista};
    }
};

// Each class applied over the medium one; a class outside the table sets only the font name,
// and leaves the sizes of the class before.
TEST(AjustarFuente, EveryControlOfTheTableTakesTheSizeOfTheClass) {
    for (const auto& [clase, puntos, altoEtiqueta, altoTexto] :
         std::vector<std::tuple<int, int, int, int>>{
             {0, 8, 255, 270}, {1, 10, 275, 315}, {2, 12, 295, 360}, {5, 10, 275, 315}}) {
        VentanaDePrueba v;
        const int puntosOtro = v.otro->font().pointSize();
        AjustarFuente(v.ventana, 1);
        AjustarFuente(v.ventana, clase);
        for (QWidget* w : v.DeLaTabla()) {
            EXPECT_EQ(w->font().pointSize(), puntos) << w->metaObject()->className();
            EXPECT_EQ(w->font().family(), QStringLiteral("MS Sans Serif"));
        }
        EXPECT_EQ(v.etiqueta->minimumHeight(), altoEtiqueta / 15);
        EXPECT_EQ(v.texto->minimumHeight(), altoTexto / 15);
        EXPECT_EQ(v.boton->minimumHeight(), 0) << "only labels and text boxes get a height";
        EXPECT_EQ(v.otro->font().pointSize(), puntosOtro) << "other controls are left alone";
        EXPECT_NE(v.otro->font().family(), QStringLiteral("MS Sans Serif"));
    }
}

TEST(ServiciosQt, FiltersBecomeQtFilters) {
    EXPECT_EQ(
        FiltrosQt(QStringLiteral("Archivos compilados (*.vdc)|*.vdc|Todos los archivos (*.*)|*.*")),
        (QStringList{QStringLiteral("Archivos compilados (*.vdc)"),
                     QStringLiteral("Todos los archivos (*.*)")}));
    EXPECT_EQ(FiltrosQt(QStringLiteral("Modelos|*.vdm;*.vdc")),
              QStringList{QStringLiteral("Modelos (*.vdm *.vdc)")});
    EXPECT_TRUE(FiltrosQt(QString()).isEmpty());
}

} // namespace
} // namespace vadro
