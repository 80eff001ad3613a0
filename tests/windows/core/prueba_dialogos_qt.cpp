#include "core/core/dialogos.h"
#include "soporte/prueba_sesion.h"
#include "windows/core/servicios_qt.h"
#include "windows/core/texto.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>

#include <gtest/gtest.h>

namespace vadro {
namespace {

// The real Qt dialogs, answered by a timer as soon as they open; the message boxes stay
// scripted.
QString Hijo(const QFileDialog& dialogo, const char* nombre) {
    const auto* etiqueta = dialogo.findChild<QLabel*>(QString::fromLatin1(nombre));
    return etiqueta != nullptr ? etiqueta->text() : QStringLiteral("(no label)");
}

class DialogosQt : public pruebas::PruebaSesion {
protected:
    DialogosQt() {
        FuncionMensajes guion = InstalarMensajes(nullptr);
        InstalarServiciosQt();
        InstalarMensajes(std::move(guion));
    }
    ~DialogosQt() override { InstalarDialogos(nullptr); }

    // Runs the action on the file dialog once it is open, then closes it.
    static void AlAbrir(std::function<void(QFileDialog&)> accion) {
        QTimer::singleShot(0, [accion = std::move(accion)] {
            auto* dialogo = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialogo, nullptr);
            accion(*dialogo);
            if (dialogo->isVisible()) {
                dialogo->reject();
            }
        });
    }
};

TEST_F(DialogosQt, TheSaveDialogSpeaksSpanishWithColumnsWideEnoughToRead) {
    PeticionDialogo peticion;
    peticion.tipo = TipoDialogo::Guardar;
    peticion.titulo = "Guardar modelo";
    peticion.directorioInicial = Directorio();
    peticion.filtro = "Archivos de modelo (*.vdm)|*.vdm";
    AlAbrir([](QFileDialog& dialogo) {
        EXPECT_EQ(dialogo.windowTitle(), QStringLiteral("Guardar modelo"));
        EXPECT_EQ(Hijo(dialogo, "fileNameLabel"), QStringLiteral("&Nombre de fichero:"));
        EXPECT_EQ(Hijo(dialogo, "fileTypeLabel"), QStringLiteral("Ficheros de tipo:"));
        EXPECT_EQ(Hijo(dialogo, "lookInLabel"), QStringLiteral("Ver en:"));
        const auto* botones = dialogo.findChild<QDialogButtonBox*>();
        ASSERT_NE(botones, nullptr);
        EXPECT_EQ(botones->button(QDialogButtonBox::Cancel)->text(), QStringLiteral("Cancelar"));
        const auto* detalles = dialogo.findChild<QTreeView*>(QStringLiteral("treeView"));
        ASSERT_NE(detalles, nullptr);
        const int ancho = dialogo.fontMetrics().horizontalAdvance(QStringLiteral("MMMMMMMM"));
        EXPECT_GE(detalles->header()->minimumSectionSize(), ancho);
        EXPECT_EQ(detalles->header()->sectionResizeMode(0), QHeaderView::Stretch) << "the name";
    });
    EXPECT_FALSE(ElegirArchivo(peticion).has_value()) << "closed without a choice";
}

} // namespace
} // namespace vadro
