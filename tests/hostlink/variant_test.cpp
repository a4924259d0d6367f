#include "hostlink/variant.h"

#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QPoint>

#include <gtest/gtest.h>

namespace hostlink {
namespace {

TEST(Variant, TakesWhatOtherCallersSendAndRefusesWhatNoValueIs) {
    struct Row {
        const char* name;
        QVariant variant;
        std::optional<core::Value> value;
    };
    const Row rows[] = {
        {"variant in variant", QVariant::fromValue(QDBusVariant(QVariant(7))), 7},
        {"byte that is not the mark", QVariant::fromValue<uchar>(9), 9},
        {"unsigned", QVariant(7u), 7},
        {"texts as variants", QVariantList{"a", "b"}, core::Value::Array{"a", "b"}},
        {"too large", QVariant::fromValue(~qulonglong{0}), {}},
        {"path", QVariant::fromValue(QDBusObjectPath("/a")), {}},
        {"array of a point", QVariantList{1, QPoint(1, 2)}, {}},
        {"bytes", QByteArray("ab"), {}},
        {"none", QVariant(), {}},
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

}  // namespace
}  // namespace hostlink
