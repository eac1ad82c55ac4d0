#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QSet>
#include <QSvgRenderer>

namespace barvon::testing {
namespace {

TEST(Illustrations, There_Is_One_For_Each_Kind_Of_Velocity) {
  QSet<QByteArray> seen;
  for (const char* name : {"average", "two_point", "field", "tidal"}) {
    QSvgRenderer renderer(QStringLiteral(":/pictures/velocity_%1.svg").arg(QLatin1String(name)));
    ASSERT_TRUE(renderer.isValid()) << name;
    EXPECT_EQ(renderer.defaultSize(), QSize(220, 160)) << name;
    QImage image(220, 160, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    seen.insert(QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()));
  }
  EXPECT_EQ(seen.size(), 4);
}

}  // namespace
}  // namespace barvon::testing
