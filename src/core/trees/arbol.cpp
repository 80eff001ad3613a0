#include "core/trees/arbol.h"

#include "core/core/error_ejecucion.h"
#include "core/core/registros.h"

#include <algorithm>

namespace vadro {

namespace {

ErrorEjecucion ErrorDeArbol(ErrorArbol numero) {
    switch (numero) {
    case ErrIndiceArbol:
        return ErrorEjecucion(numero, "El índice está fuera de los límites");
    case ErrNodoNoEncontrado:
        return ErrorEjecucion(numero, "No se encontró el elemento");
    case ErrClaveRepetida:
        return ErrorEjecucion(numero, "La clave no es única en la colección");
    case ErrCicloArbol:
        return ErrorEjecucion(numero, "Esto introduciría un ciclo");
    }
    return ErrorEjecucion(numero);
}

} // namespace

// ---- node ----

NodoArbol::NodoArbol(Arbol& arbol, std::string key, std::string text, int image)
    : arbol_(arbol), key_(std::move(key)), text_(std::move(text)), image_(image) {}

NodoArbol* NodoArbol::Hijo(int i) const {
    if (i < 1 || i > NumHijos()) {
        throw ErrorDeArbol(ErrIndiceArbol);
    }
    return hijos_[static_cast<std::size_t>(i - 1)];
}

NodoArbol* NodoArbol::Siguiente() const {
    const auto& hermanos = arbol_.Hermanos(padre_);
    const auto proxima = static_cast<std::size_t>(fila_) + 1;
    return proxima < hermanos.size() ? hermanos[proxima] : nullptr;
}

NodoArbol* NodoArbol::Anterior() const {
    return fila_ > 0 ? arbol_.Hermanos(padre_)[static_cast<std::size_t>(fila_ - 1)] : nullptr;
}

NodoArbol* NodoArbol::PrimerHermano() const {
    return arbol_.Hermanos(padre_).front();
}

NodoArbol* NodoArbol::UltimoHermano() const {
    return arbol_.Hermanos(padre_).back();
}

bool NodoArbol::DentroDe(const NodoArbol* otro) const {
    for (const NodoArbol* n = this; n != nullptr; n = n->padre_) {
        if (n == otro) {
            return true;
        }
    }
    return false;
}

// ---- tree ----

Arbol::~Arbol() = default;

template <typename Aviso> void Arbol::Avisar(Aviso aviso) {
    // A copy, so that an observer may stop observing while it hears.
    const auto observadores = observadores_;
    for (ObservadorArbol* observador : observadores) {
        aviso(*observador);
    }
}

std::vector<NodoArbol*>& Arbol::Hermanos(NodoArbol* padre) {
    return padre != nullptr ? padre->hijos_ : raices_;
}

const std::vector<NodoArbol*>& Arbol::Hermanos(const NodoArbol* padre) const {
    return padre != nullptr ? padre->hijos_ : raices_;
}

void Arbol::NumerarFilas(std::vector<NodoArbol*>& hermanos, std::size_t desde) {
    for (std::size_t i = desde; i < hermanos.size(); ++i) {
        hermanos[i]->fila_ = static_cast<int>(i);
    }
}

void Arbol::NumerarColeccion(std::size_t desde) {
    for (std::size_t i = desde; i < coleccion_.size(); ++i) {
        coleccion_[i]->index_ = static_cast<int>(i) + 1;
    }
}

NodoArbol* Arbol::Añadir(NodoArbol* relativo, Relacion relacion, const std::string& key,
                         const std::string& text, int image) {
    if (!key.empty() && porClave_.contains(key)) {
        throw ErrorDeArbol(ErrClaveRepetida);
    }
    if (relacion != Relacion::UltimoHijo && relativo == nullptr) {
        throw ErrorEjecucion(ErrLlamadaNoValida);
    }
    NodoArbol* padre = relacion == Relacion::UltimoHijo ? relativo : relativo->padre_;
    auto& hermanos = Hermanos(padre);
    std::size_t fila = hermanos.size();
    if (relacion == Relacion::Anterior) {
        fila = static_cast<std::size_t>(relativo->fila_);
    } else if (relacion == Relacion::Siguiente) {
        fila = static_cast<std::size_t>(relativo->fila_) + 1;
    }
    Avisar([&](ObservadorArbol& o) { o.AntesDeAñadir(padre, static_cast<int>(fila)); });

    auto propio = std::unique_ptr<NodoArbol>(new NodoArbol(*this, key, text, image));
    NodoArbol* nodo = propio.get();
    nodo->padre_ = padre;
    coleccion_.push_back(std::move(propio));
    nodo->index_ = Cuenta();
    hermanos.insert(hermanos.begin() + static_cast<std::ptrdiff_t>(fila), nodo);
    NumerarFilas(hermanos, fila);
    if (!key.empty()) {
        porClave_.emplace(key, nodo);
    }
    Avisar([&](ObservadorArbol& o) { o.DespuesDeAñadir(nodo); });
    return nodo;
}

void Arbol::Quitar(NodoArbol* nodo) {
    Avisar([&](ObservadorArbol& o) { o.AntesDeQuitar(nodo); });
    NodoArbol* padre = nodo->padre_;
    const int fila = nodo->fila_;
    auto& hermanos = Hermanos(padre);
    hermanos.erase(hermanos.begin() + fila);
    NumerarFilas(hermanos, static_cast<std::size_t>(fila));

    if (seleccionado_ != nullptr && seleccionado_->DentroDe(nodo)) {
        seleccionado_ = nullptr;
    }
    if (resaltado_ != nullptr && resaltado_->DentroDe(nodo)) {
        resaltado_ = nullptr;
    }
    // The subtree is marked before anything is freed, since the test walks up through parents.
    std::vector<bool> fuera(coleccion_.size());
    std::size_t primero = coleccion_.size();
    for (std::size_t i = 0; i < coleccion_.size(); ++i) {
        fuera[i] = coleccion_[i]->DentroDe(nodo);
        if (fuera[i]) {
            porClave_.erase(coleccion_[i]->key_);
            primero = std::min(primero, i);
        }
    }
    std::size_t destino = primero;
    for (std::size_t i = primero; i < coleccion_.size(); ++i) {
        if (!fuera[i]) {
            coleccion_[destino++] = std::move(coleccion_[i]);
        }
    }
    coleccion_.resize(destino);
    NumerarColeccion(primero);
    Avisar([&](ObservadorArbol& o) { o.DespuesDeQuitar(padre, fila); });
}

void Arbol::Mover(NodoArbol* nodo, NodoArbol* nuevoPadre) {
    if (nuevoPadre != nullptr && nuevoPadre->DentroDe(nodo)) {
        throw ErrorDeArbol(ErrCicloArbol);
    }
    auto& destino = Hermanos(nuevoPadre);
    Avisar([&](ObservadorArbol& o) {
        o.AntesDeMover(nodo, nuevoPadre, static_cast<int>(destino.size()));
    });
    auto& origen = Hermanos(nodo->padre_);
    const int fila = nodo->fila_;
    origen.erase(origen.begin() + fila);
    NumerarFilas(origen, static_cast<std::size_t>(fila));
    nodo->padre_ = nuevoPadre;
    destino.push_back(nodo);
    NumerarFilas(destino, destino.size() - 1);
    Avisar([&](ObservadorArbol& o) { o.DespuesDeMover(nodo); });
}

void Arbol::Vaciar() {
    Avisar([](ObservadorArbol& o) { o.AntesDeVaciar(); });
    seleccionado_ = nullptr;
    resaltado_ = nullptr;
    raices_.clear();
    porClave_.clear();
    coleccion_.clear();
    Avisar([](ObservadorArbol& o) { o.DespuesDeVaciar(); });
}

void Arbol::CambiarClave(NodoArbol* nodo, const std::string& key) {
    if (key == nodo->key_) {
        return;
    }
    if (!key.empty() && porClave_.contains(key)) {
        throw ErrorDeArbol(ErrClaveRepetida);
    }
    porClave_.erase(nodo->key_);
    nodo->key_ = key;
    if (!key.empty()) {
        porClave_.emplace(key, nodo);
    }
    Avisar([&](ObservadorArbol& o) { o.ClaveCambiada(nodo); });
}

void Arbol::CambiarTexto(NodoArbol* nodo, const std::string& text) {
    nodo->text_ = text;
    Avisar([&](ObservadorArbol& o) { o.NodoCambiado(nodo); });
}

void Arbol::CambiarTag(NodoArbol* nodo, std::optional<int> tag) {
    nodo->tag_ = tag;
    Avisar([&](ObservadorArbol& o) { o.NodoCambiado(nodo); });
}

void Arbol::CambiarImagen(NodoArbol* nodo, int image) {
    nodo->image_ = image;
    Avisar([&](ObservadorArbol& o) { o.NodoCambiado(nodo); });
}

void Arbol::Expandir(NodoArbol* nodo) {
    if (!nodo->expandido_) {
        nodo->expandido_ = true;
        Avisar([&](ObservadorArbol& o) { o.NodoCambiado(nodo); });
    }
}

NodoArbol* Arbol::Nodo(int index) const {
    if (index < 1 || index > Cuenta()) {
        throw ErrorDeArbol(ErrIndiceArbol);
    }
    return coleccion_[static_cast<std::size_t>(index - 1)].get();
}

NodoArbol* Arbol::BuscarClave(const std::string& key) const {
    const auto it = porClave_.find(key);
    return it != porClave_.end() ? it->second : nullptr;
}

NodoArbol* Arbol::NodoPorClave(const std::string& key) const {
    NodoArbol* nodo = BuscarClave(key);
    if (nodo == nullptr) {
        throw ErrorDeArbol(ErrIndiceArbol);
    }
    return nodo;
}

void Arbol::Seleccionar(NodoArbol* nodo) {
    seleccionado_ = nodo;
    Avisar([&](ObservadorArbol& o) { o.SeleccionCambiada(nodo); });
}

void Arbol::Resaltar(NodoArbol* nodo) {
    if (resaltado_ != nodo) {
        resaltado_ = nodo;
        Avisar([&](ObservadorArbol& o) { o.ResaltadoCambiado(nodo); });
    }
}

void Arbol::AsegurarVisible(NodoArbol* nodo) {
    for (NodoArbol* n = nodo->padre_; n != nullptr; n = n->padre_) {
        Expandir(n);
    }
    Avisar([&](ObservadorArbol& o) { o.NodoMostrado(nodo); });
}

void Arbol::Observar(ObservadorArbol* observador) {
    observadores_.push_back(observador);
}

void Arbol::DejarDeObservar(ObservadorArbol* observador) {
    std::erase(observadores_, observador);
}

// ---- free routines ----

int NivelNodo(const NodoArbol* nodo) {
    return nodo != nullptr ? NivelNodo(nodo->Key()) : 0;
}

int RenumerarClaves(Arbol& arbol, int letras) {
    const auto prefijo = [letras](const NodoArbol* nodo) {
        return nodo->Key().substr(0, static_cast<std::size_t>(letras));
    };
    for (int i = 1; i <= arbol.Cuenta(); ++i) {
        NodoArbol* nodo = arbol.Nodo(i);
        arbol.CambiarClave(nodo, prefijo(nodo) + " ORL " + std::to_string(i));
    }
    for (int i = 1; i <= arbol.Cuenta(); ++i) {
        NodoArbol* nodo = arbol.Nodo(i);
        arbol.CambiarClave(nodo, prefijo(nodo) + " " + std::to_string(i));
    }
    return arbol.Cuenta();
}

NodoArbol* CopiarRama(const NodoArbol& nodo, Arbol& destino, NodoArbol* padre,
                      const std::function<std::string(const NodoArbol&)>& nuevaClave,
                      const std::function<int(const NodoArbol&)>& imagen) {
    NodoArbol* copia = nullptr;
    while (copia == nullptr) {
        const std::string key = nuevaClave(nodo);
        try {
            copia = destino.Añadir(padre, Relacion::UltimoHijo, key, nodo.Text(), imagen(nodo));
        } catch (const ErrorEjecucion& error) {
            if (error.Numero() != ErrClaveRepetida) {
                throw;
            }
        }
    }
    destino.AsegurarVisible(copia);
    // A copy of the list: the copy of the branch may land in the same tree, under this node.
    const std::vector<NodoArbol*> hijos =
        nodo.Hijos(); // NOLINT(performance-unnecessary-copy-initialization)
    for (const NodoArbol* hijo : hijos) {
        CopiarRama(*hijo, destino, copia, nuevaClave, imagen);
    }
    return copia;
}

} // namespace vadro
