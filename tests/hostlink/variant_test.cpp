#include "hostlink/variant.h"

#include "hostlink/sample_values.h"

#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QPoint>

#include <gtest/gtest.h>

namespace hostlink {
namespace {

TEST(Variant, GivesBackTheValueItWasMadeOf) {
    for (const Sample& sample : sampleValues()) {
        SCOPED_TRACE(sample.name);
        EXPECT_TRUE(fromVariant(toVariant(sample.value)) == sample.value);
    }
}

TEST(Variant, TakesWhatOtherCallersSend) {
    struct Row {
        const char* name;
        QVariant variant;
        core::Value value;
    };
    const Row rows[] = {
        {"variant in variant", QVariant::fromValue(QDBusVariant(QVariant(7))), 7},
        {"byte that is not the mark", QVariant::fromValue<uchar>(9), 9},
        {"unsigned", QVariant(7u), 7},
        {"texts as variants", QVariantList{"a", "b"}, core::Value::Array{"a", "b"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const auto value = fromVariant(row.variant);
        ASSERT_TRUE(value);
        EXPECT_TRUE(*value == row.value);
    }
}

TEST(Variant, RefusesWhatNoValueIs) {
    const QVariant variants[] = {
        QVariant::fromValue(~qulonglong{0}),
        QVariant::fromValue(QDBusObjectPath("/a")),
        QVariantList{1, QPoint(1, 2)},
        QByteArray("ab"),
        QVariant(),
    };
    for (const QVariant& variant : variants) {
        SCOPED_TRACE(variant.metaType().name() ? variant.metaType().name() : "none");
        EXPECT_FALSE(fromVariant(variant));
    }
}

TEST(Variant, TextThatIsNoUtf8IsMended) {
    EXPECT_EQ(toVariant("a\xff"
                        "b")
                  .toString(),
              QString::fromUtf8("a\uFFFDb"));
}

TEST(Variant, MeasuresDepthAndBytes) {
    EXPECT_EQ(depth("x"), 0);
    EXPECT_EQ(depth(core::Value::Array{}), 1);
    EXPECT_EQ(depth(nested(5)), 5);
    EXPECT_EQ(byteSize(core::Value::Array{"abc", core::Value()}), 16 + 19 + 16u);
}

}  // namespace
}  // namespace hostlink
