#pragma once

namespace vadro {

// Counts the steps of the main window in hand while it lives, so that a step a child window
// asks for waits until the one running has finished.
class PasoEnCurso {
public:
    explicit PasoEnCurso(int& pasos) : pasos_(pasos) { ++pasos_; }
    ~PasoEnCurso() { --pasos_; }
    PasoEnCurso(const PasoEnCurso&) = delete;
    PasoEnCurso& operator=(const PasoEnCurso&) = delete;

private:
    int& pasos_;
};

} // namespace vadro
