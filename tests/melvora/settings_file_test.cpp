#include "melvora/settings_file.h"

#include "core/wort.h"
#include "settingsfile/settings_file.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace melvora {
namespace {

namespace wort = core::wort;

TEST(SettingsFile, WhatIsWrongIsToldInOneSentence) {
    const QTemporaryDir folder;
    const Words words(MELVORA_LANGUAGES);
    const QByteArray open = "<test><basic><type>1</type></basic>\n",
                     control = "<s:control><cname>a</cname></s:control>";
    const QByteArray big(settingsfile::largest - 40, ' ');
    struct Row {
        const char* name;
        QByteArray bytes;
        wort::Id told;
        QString line = {};
    };
    const Row rows[] = {
        {"settings", open + "</test>", wort::none},
        {"a control alone, with a prefix", "<t xmlns:s='s'>" + control + "</t>", wort::none},
        {"as big as may be", open + big.left(big.size() - 40) + "</test>", wort::none},
        {"too big", open + big + "</test>", wort::settingsTooBig},
        {"empty", "", wort::settingsDamaged, "1"},
        {"cut off", open + "\n<b>", wort::settingsDamaged, "3"},
        {"wrong end", open + "</t>", wort::settingsDamaged, "2"},
        {"not what its encoding says", open + "\n\xff</test>", wort::settingsDamaged, "3"},
        {"an entity of its own", "<!DOCTYPE t [\n<!ENTITY a 'a'>]><test/>", wort::settingsDamaged,
         "2"},
        {"another document", "<html><body/></html>", wort::settingsNone},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const QString path = folder.filePath("Übung %2.mvs");
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(row.bytes) == row.bytes.size());
        file.close();
        const QString expected = row.told == wort::none ? QString()
                                 : row.line.isEmpty()   ? words.wort(row.told).arg(path)
                                                        : words.wort(row.told).arg(path, row.line);
        EXPECT_EQ(whyUnusable(words, path).toStdString(), expected.toStdString());
    }
    const QString pipe = folder.filePath("pipe.mvs"), none = folder.filePath("none.mvs");
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& path : {pipe, folder.path()})
        EXPECT_EQ(whyUnusable(words, path), words.wort(wort::settingsNoPlainFile).arg(path));
    EXPECT_EQ(whyUnusable(words, none), words.wort(wort::settingsMissing).arg(none));
}

}  // namespace
}  // namespace melvora
