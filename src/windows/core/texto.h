#pragma once

#include <QString>

#include <string>

namespace vadro {

// The core speaks UTF-8; the windows speak QString.
inline QString Q(const std::string& utf8) {
    return QString::fromStdString(utf8);
}
inline QString Q(const char* utf8) {
    return QString::fromUtf8(utf8);
}
inline std::string ACadena(const QString& texto) {
    return texto.toStdString();
}

} // namespace vadro
