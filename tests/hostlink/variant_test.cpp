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
        std::optional<core::Value> value;
    };
    const Row rows[] = {
        {"variant in variant", QVariant::fromValue(QDBusVariant(QVariant(7))), core::Value(7)},
        {"byte that is not the mark", QVariant::fromValue<uchar>(9), core::Value(9)},
        {"unsigned", QVariant(7u), core::Value(7)},
        {"unsigned beyond the range", QVariant::fromValue(~qulonglong{0}), {}},
        {"texts", QStringList{"a", "b"}, core::Value(core::Value::Array{"a", "b"})},
        {"object path", QVariant::fromValue(QDBusObjectPath("/a")), {}},
        {"unknown type in an array", QVariantList{1, QPoint(1, 2)}, {}},
        {"bytes", QByteArray("ab"), {}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_TRUE(fromVariant(row.variant) == row.value);
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
