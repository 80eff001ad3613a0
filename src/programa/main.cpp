#include "windows/core/inicio.h"

int main(int argc, char* argv[]) {
    return vadro::Main(argc, argv);
}
