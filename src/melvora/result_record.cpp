#include "melvora/result_record.h"

#include <QStringDecoder>

#include <pugixml.hpp>

#include <algorithm>

namespace melvora {

namespace {

QString attribute(const pugi::xml_node& node, const char* name) {
    return QString::fromUtf8(node.attribute(name).value());
}

/// Value of the node's `property` child with the key.
QString property(const pugi::xml_node& node, const char* key) {
    return attribute(node.find_child_by_attribute("property", "key", key), "value");
}

ResultRecord::Lesson lessonOf(const pugi::xml_node& node) {
    ResultRecord::Lesson lesson{property(node.child("properties"), "Tonskala"), {}};
    for (const auto& answer : node.child("answers").children("answer"))
        lesson.answers.append({property(answer, "Antwort") == "true", property(answer, "Skala"),
                               property(answer, "Dauer Antwort")});
    return lesson;
}

bool isUtf8(const QByteArray& bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return !decoder.hasError() && !text.contains(QChar(0));
}

}  // namespace

int ResultRecord::rightFirst() const {
    return static_cast<int>(std::ranges::count_if(lessons, [](const Lesson& lesson) {
        return !lesson.answers.isEmpty() && lesson.answers.first().right;
    }));
}

int ResultRecord::answered() const {
    return static_cast<int>(std::ranges::count_if(
        lessons, [](const Lesson& lesson) { return !lesson.answers.isEmpty(); }));
}

std::optional<ResultRecord> parseResultRecord(const QByteArray& xml) {
    pugi::xml_document document;
    if (!isUtf8(xml) ||
        !document.load_buffer(xml.data(), static_cast<std::size_t>(xml.size()),
                              pugi::parse_default | pugi::parse_declaration, pugi::encoding_utf8))
        return {};
    const QString encoding = attribute(document.first_child(), "encoding");
    const bool declared = document.first_child().type() == pugi::node_declaration;
    if (declared && !encoding.isEmpty() && encoding.compare("UTF-8", Qt::CaseInsensitive) != 0)
        return {};
    const auto root = document.child("exercise");
    const auto properties = root.child("properties");
    if (!properties.attribute("programm")) return {};
    ResultRecord record{attribute(properties, "programm"),
                        attribute(properties, "ukey"),
                        attribute(properties, "exercise"),
                        attribute(properties, "description"),
                        attribute(properties, "timestamp"),
                        {},
                        {}};
    for (const auto& setting : root.child("settings").children("setting"))
        record.settings.append({attribute(setting, "key"), attribute(setting, "value")});
    for (const auto& lesson : root.child("lessons").children("lesson"))
        record.lessons.append(lessonOf(lesson));
    return record;
}

}  // namespace melvora
