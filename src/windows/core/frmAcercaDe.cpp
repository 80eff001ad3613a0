#include "windows/core/frmAcercaDe.h"

#include "core/core/version.h"
#include "windows/core/conectar.h"
#include "windows/core/controles.h"
#include "windows/core/texto.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vadro {

frmAcercaDe::frmAcercaDe(QWidget* padre) : QDialog(padre) {
    setObjectName(Q("frmAcercaDe"));
    setWindowTitle(Q("Acerca de Vadro Programador"));
    auto* producto = new QLabel(Q("VADRO\nHerramienta de ayuda a la decisión multicriterio"), this);
    producto->setObjectName(Q("lblProducto"));
    QFont grande = producto->font();
    grande.setPointSize(grande.pointSize() + 4);
    grande.setBold(true);
    producto->setFont(grande);
    lblModulo = new QLabel(Q("módulo programador"), this);
    lblModulo->setObjectName(Q("lblModulo"));
    lblVersion = new QLabel(Q("Versión ") + Q(VersionPrograma()), this);
    lblVersion->setObjectName(Q("lblVersion"));
    lblDisclaimer =
        new QLabel(Q("Este programa se entrega tal como está, sin garantía de ninguna clase. "
                     "Los modelos que con él se diseñen y las decisiones que con ellos se "
                     "tomen son responsabilidad de sus autores. Todos los derechos reservados."),
                   this);
    lblDisclaimer->setObjectName(Q("lblDisclaimer"));
    lblDisclaimer->setWordWrap(true);
    cmdAceptar = BotonAceptar(this);

    auto* columna = new QVBoxLayout(this);
    for (QWidget* w :
         std::initializer_list<QWidget*>{producto, lblModulo, lblVersion, lblDisclaimer}) {
        columna->addWidget(w);
    }
    columna->addLayout(FilaBotones({cmdAceptar}));
    Conectar(cmdAceptar, &QPushButton::clicked, this, [this] { accept(); });
    setMinimumWidth(420);
    Cargado = true;
}

} // namespace vadro
