#include "Quillmere/dashboard/BalanceTrendChart.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <gtest/gtest.h>

namespace quillmere {

namespace {

constexpr int height = 100;
constexpr int pixelsPerUnit = 2;

/// The chart as it is drawn at twice the size, in red on white, labels in white.
QImage drawn(const QList<double>& values) {
    BalanceTrendChart chart;
    chart.setSize(QSizeF(300, height));
    chart.setValues(values);
    chart.setProperty("tint", QColor(Qt::red));
    chart.setProperty("labelColor", QColor(Qt::white));
    QImage image(300 * pixelsPerUnit, height * pixelsPerUnit, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixelsPerUnit, pixelsPerUnit);
    chart.paint(&painter);
    return image;
}

bool isTinted(QRgb pixel) {
    return pixel != qRgb(255, 255, 255);
}

bool isLine(QRgb pixel) {
    return qGreen(pixel) < 40;
}

/// Height of the middle of the line in column `x`, in units from the top; negative without a line.
double lineAt(const QImage& image, int x) {
    int first = -1;
    int last = -1;
    for (int y = 0; y < image.height(); ++y) {
        if (isLine(image.pixel(x, y))) {
            first = first < 0 ? y : first;
            last = y;
        }
    }
    return first < 0 ? -1 : (first + last + 1) / 2.0 / pixelsPerUnit;
}

int rightEdge(const QImage& image) {
    int x = image.width() - 1;
    while (x >= 0 && lineAt(image, x) < 0) {
        --x;
    }
    return x;
}

} // namespace

TEST(BalanceTrendChartTest, DrawsNothingWithFewerThanTwoValues) {
    for (const QList<double>& values : {QList<double>{}, QList<double>{3600}}) {
        const QImage image = drawn(values);
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                ASSERT_FALSE(isTinted(image.pixel(x, y))) << x << "," << y;
            }
        }
    }
}

TEST(BalanceTrendChartTest, PlacesValuesEvenlyBetweenTheEdgesOfTheirDomain) {
    // The domain of these is −2 … 4 hours, so an hour is a sixth of the height.
    const QImage image = drawn({-3600, 0, 3 * 3600});
    const int right = rightEdge(image);
    EXPECT_GT(right, image.width() / 2);
    EXPECT_LT(right, image.width() - 20) << "no room for the labels";
    EXPECT_NEAR(lineAt(image, 0), height * 5.0 / 6, 1);
    EXPECT_NEAR(lineAt(image, right / 2), height * 4.0 / 6, 1.5);
    EXPECT_NEAR(lineAt(image, right), height * 1.0 / 6, 1.5);
}

TEST(BalanceTrendChartTest, FillsBeneathTheLineOnly) {
    const QImage image = drawn({0, 0});
    EXPECT_TRUE(isTinted(image.pixel(10, image.height() - 4)));
    EXPECT_FALSE(isTinted(image.pixel(10, 4)));
}

} // namespace quillmere
