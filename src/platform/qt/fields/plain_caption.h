#pragma once

#include <QString>

namespace barvon {

/// A caption as it is read: without the mark of its letter. "Sand && Clay" is "Sand & Clay".
inline QString Plain_Caption(QString caption) {
  return caption.replace(QStringLiteral("&&"), QStringLiteral("\n"))
      .remove(QLatin1Char('&'))
      .replace(QLatin1Char('\n'), QLatin1Char('&'));
}

}  // namespace barvon
