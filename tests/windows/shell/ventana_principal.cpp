#include "ventana_principal.h"

#include "windows/shell/etiqueta_paso.h"

#include <QCheckBox>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

namespace vadro::pruebas {

VentanaPrincipal::VentanaPrincipal() {
    principal.show();
}

void VentanaPrincipal::PulsarBoton(const char* clave) {
    auto* accion = Hijo<QAction>(principal, clave);
    auto* boton = qobject_cast<QToolButton*>(principal.tlbPrincipal->widgetForAction(accion));
    ASSERT_NE(boton, nullptr) << clave;
    boton->click();
}

void VentanaPrincipal::PulsarEtiqueta(int indice) {
    QTest::mouseClick(principal.lblMenu.at(static_cast<std::size_t>(indice)), Qt::LeftButton);
}

void VentanaPrincipal::NuevoModelo() {
    modales.Esperar(QStringLiteral("frmPropiedades"),
                    [](QDialog& d) { Hijo<QPushButton>(d, "cmdAceptar")->click(); });
    PulsarBoton("Nuevo");
}

void VentanaPrincipal::ContinuarAceptandoPermisos() {
    modales.Esperar(QStringLiteral("frmPreguntarPonderacion"),
                    [](QDialog& d) { Hijo<QPushButton>(d, "cmdAceptar")->click(); });
    principal.cmdContinuar->click();
}

void VentanaPrincipal::UnRequerimiento() {
    Modelo& modelo = sesion().modelo;
    modelo.NumRequerimientos = 1;
    modelo.Requerimientos.Redimensionar(1);
    modelo.Requerimientos(1).Nombre = "Coste";
}

void VentanaPrincipal::SinRequerimientos() {
    sesion().modelo.NumRequerimientos = 0;
    sesion().modelo.Requerimientos.Borrar();
}

std::vector<std::string> VentanaPrincipal::Hijas() const {
    std::vector<std::string> nombres;
    for (QMdiSubWindow* marco : principal.mdiCliente->subWindowList()) {
        if (auto* hija = dynamic_cast<VentanaHija*>(marco->widget()); hija && hija->Cargado) {
            nombres.push_back(hija->objectName().toStdString());
        }
    }
    return nombres;
}

QWidget* VentanaPrincipal::Hija(const char* nombre) const {
    for (QMdiSubWindow* marco : principal.mdiCliente->subWindowList()) {
        if (auto* hija = dynamic_cast<VentanaHija*>(marco->widget());
            hija && hija->Cargado && hija->objectName() == QString::fromUtf8(nombre)) {
            return hija;
        }
    }
    throw std::runtime_error(std::string("no child window loaded named ") + nombre);
}

std::string VentanaPrincipal::Estado() const {
    return principal.TextoEstado().toStdString();
}

std::string VentanaPrincipal::Situacion() const {
    std::string texto = NombrePosicion(principal.Posicion()) + " | " + Estado() + " |";
    for (const std::string& hija : Hijas()) {
        texto += " " + hija;
    }
    return texto;
}

bool VentanaPrincipal::Visible(int boton) const {
    return principal.Boton(boton)->isVisible();
}

bool VentanaPrincipal::Habilitado(int boton) const {
    return principal.Boton(boton)->isEnabled();
}

// A: the design entries on, Retroceder off and the design group shown; B the other way round.
// Continuar is on in both.
void VentanaPrincipal::EsperarAjuste(bool a) const {
    for (QAction* entrada : {principal.mnuConfiguracionEjes, principal.mnuRequerimientos,
                             principal.mnuComponentes, principal.mnuEtapas}) {
        EXPECT_EQ(entrada->isEnabled(), a) << entrada->objectName().toStdString();
    }
    EXPECT_EQ(principal.cmdRetroceder->isEnabled(), !a);
    EXPECT_EQ(Habilitado(8), !a);
    EXPECT_TRUE(principal.cmdContinuar->isEnabled());
    EXPECT_TRUE(Habilitado(9));
    for (int i = 10; i <= 13; ++i) {
        EXPECT_EQ(Visible(i), a) << "button " << i;
    }
}

void VentanaPrincipal::EsperarCompilacionCorrecta() {
    mensajes.Esperar("VADRO PROGRAMADOR: compilación correcta",
                     "El modelo no contiene errores.\nDesea crear el archivo compilado (*.vdc) "
                     "utilizable por el módulo VADRO USUARIO?",
                     Respuesta::No);
}

QColor VentanaPrincipal::Color(int indice) const {
    return principal.lblMenu.at(static_cast<std::size_t>(indice))
        ->palette()
        .color(QPalette::WindowText);
}

bool VentanaPrincipal::Negrita(int indice) const {
    return principal.lblMenu.at(static_cast<std::size_t>(indice))->font().bold();
}

void VentanaPrincipal::EsperarPendiente(int indice) const {
    EXPECT_EQ(Color(indice), rojo) << "label " << indice;
    EXPECT_TRUE(Negrita(indice)) << "label " << indice;
}

void VentanaPrincipal::EsperarNormal(int indice) const {
    EXPECT_EQ(Color(indice), principal.palette().color(QPalette::ButtonText)) << "label " << indice;
    EXPECT_FALSE(Negrita(indice)) << "label " << indice;
}

} // namespace vadro::pruebas
