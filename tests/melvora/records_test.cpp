#include "melvora/records.h"

#include "hostlink/sample_values.h"
#include "melvora/json_text.h"
#include "melvora/store.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace melvora {
namespace {

TEST(Records, GiveBackEveryValueAndRefuseDamagedOnes) {
    const QTemporaryDir folder;
    Store store(folder.path());
    for (const auto& sample : hostlink::sampleValues()) {
        SCOPED_TRACE(sample.name);
        store.records.store({"anna", "zepha9", "E1"}, sample.value);
        EXPECT_TRUE(store.records.read({"anna", "zepha9", "E1"}) == sample.value);
    }
    for (const char* text : {"", "[1,", "1,2", "{\"a\":1}", "{\"real\":\"x\"}", "nonsense"})
        EXPECT_FALSE(fromJson(text)) << text;
}

TEST(Records, AreKeptPerUserExecutableAndKeyAndReplaced) {
    const QTemporaryDir folder;
    const Records::Address addresses[] = {
        {"anna", "zepha9", "E1"}, {"anna", "zepha9", "A1"}, {"anna", "zepha9", "E1b"},
        {"anna", "other", "E1"},  {"jörg", "zepha9", "E1"}, {nobody, "zepha9", "E1"},
        {"ANNA", "zepha9", "E1"}, {"anna", "zepha9", "e1"}, {"anna' --", "zepha9", "E1"},
    };
    for (const char* round : {"first", "replaced"}) {
        SCOPED_TRACE(round);
        Store store(folder.path());
        int number = 0;
        for (const auto& address : addresses)
            store.records.store(address, core::Value::Array{round, number++});
        number = 0;
        for (const auto& address : addresses)
            EXPECT_TRUE(store.records.read(address) ==
                        core::Value(core::Value::Array{round, number++}));
    }
    Store again(folder.path());
    again.users.remove("anna");
    EXPECT_FALSE(again.records.read(addresses[0])) << "records go with their user";
    EXPECT_EQ(again.records.read(addresses[4])->at(0), core::Value("replaced"));
    EXPECT_FALSE(again.records.read({"jörg", "zepha9", "E2"}));
}

}  // namespace
}  // namespace melvora
