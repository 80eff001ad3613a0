#pragma once

#include "core/weighting/rejilla_ponderacion.h"
#include "core/weighting/vista_ponderacion.h"

#include <QAbstractTableModel>

#include <optional>

namespace vadro {

QColor QColorDe(ColorRGB color);

// A weights grid for a table view: the cells of the core's grid, row 0 and column 0 shown as
// the fixed heads, centred texts, back colours, and as tooltip the text of a cell that is not
// fixed. The arithmetic writes through `RejillaPonderacion`; the view hears of every change.
class AdaptadorRejilla : public QAbstractTableModel, public RejillaPonderacion {
    Q_OBJECT
public:
    explicit AdaptadorRejilla(QObject* padre = nullptr) : QAbstractTableModel(padre) {}

    int Filas() const override { return celdas_.Filas(); }
    int Columnas() const override { return celdas_.Columnas(); }
    void Dimensionar(int filas, int columnas) override;
    std::string Texto(int fila, int columna) const override;
    void PonerTexto(int fila, int columna, const std::string& texto) override;
    void PonerColorFondo(int fila, int columna, ColorRGB color) override;
    ColorRGB ColorFondo(int fila, int columna) const { return celdas_.ColorFondo(fila, columna); }

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int rol) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;

private:
    RejillaMemoria celdas_;
};

// The overview of the weighted tree for its table view: one column per level under its head,
// the node texts with their weights, white or light red, the selected set in navy with the
// window colour as text, and as tooltip the node's global weight.
class ModeloVistaPonderacion : public QAbstractTableModel {
    Q_OBJECT
public:
    ModeloVistaPonderacion(const Modelo& modelo, VistaPonderacion vista, QObject* padre = nullptr);

    const VistaPonderacion& Vista() const { return vista_; }
    const std::optional<SeleccionConjunto>& Seleccion() const { return seleccion_; }
    // Repaints the previous set by its weights and paints the new one navy.
    void Seleccionar(const SeleccionConjunto& seleccion);
    // The set's cells made again from the model, with their new weights and colours; no set
    // stays selected.
    void Reconstruir(const SeleccionConjunto& seleccion);

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int rol) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int rol) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;

private:
    bool Seleccionada(int fila, int columna) const;
    void Avisar(const SeleccionConjunto& seleccion);

    const Modelo& modelo_;
    VistaPonderacion vista_;
    std::optional<SeleccionConjunto> seleccion_;
};

} // namespace vadro
