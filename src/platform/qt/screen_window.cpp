#include "platform/qt/screen_window.h"

#include <QVariant>

namespace barvon {
namespace {

constexpr char kIsScreen[] = "IsScreen";

}  // namespace

void Name_Screen(QWidget& window, const char* name) {
  window.setObjectName(QLatin1String(name));
  window.setProperty(kIsScreen, true);
}

bool Is_Screen(const QWidget& window) { return window.property(kIsScreen).toBool(); }

}  // namespace barvon
