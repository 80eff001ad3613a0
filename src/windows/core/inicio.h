#pragma once

#include <QLockFile>

#include <functional>
#include <memory>

namespace vadro {

class frmPrincipal;
class frmSplash;

// The start of the process. A command line that is not empty ends it at once, silently.
int Main(int argc, char* argv[]);

// The steps of the start after the command line has been looked at, in their order.
class Arranque {
public:
    Arranque();
    ~Arranque();

    // How the start waits for the splash screen; a test passes one that does not wait.
    std::function<void(int segundos)> esperar;

    // Runs the start; false when the process must end (a second instance refused).
    bool Iniciar();

    frmPrincipal* Principal() const { return principal_.get(); }
    frmSplash* Splash() const { return splash_.get(); }

private:
    bool PreguntarSiHayOtraInstancia();

    std::unique_ptr<QLockFile> cerrojo_;
    std::unique_ptr<frmSplash> splash_;
    std::unique_ptr<frmPrincipal> principal_;
};

} // namespace vadro
