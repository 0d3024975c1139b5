// Lets GoogleTest print QStrings as text in failure messages.
#pragma once

#include <QString>
#include <ostream>

inline void PrintTo(const QString& s, std::ostream* os) {
  *os << '"' << s.toStdString() << '"';
}
