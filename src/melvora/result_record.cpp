#include "melvora/result_record.h"

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
    if (!document.load_buffer(xml.data(), static_cast<std::size_t>(xml.size()))) return {};
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
