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

/// The first answer of a task that is named bears the name of a scale, that of a written one does
/// not; behind it a mark stands in that place.
ResultRecord::Lesson lessonOf(const pugi::xml_node& node) {
    ResultRecord::Lesson lesson{property(node.child("properties"), "Tonskala"), {}};
    const auto answers = node.child("answers").children("answer");
    const bool isNamed =
        answers.begin() != answers.end() && !property(*answers.begin(), "Skala").isEmpty();
    for (const auto& answer : answers)
        lesson.answers.append({property(answer, "Antwort") == "true",
                               isNamed ? property(answer, "Skala") : QString(),
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

Exercise ResultRecord::about() const {
    const auto setting = [this](const char* label) {
        const auto found =
            std::ranges::find(settings, QString(label), &QPair<QString, QString>::first);
        return found == settings.end() ? QString() : found->second;
    };
    Exercise about{Branch::Unknown, Kind::Unknown, exercise.isEmpty() ? description : exercise,
                   setting("Übungsmodus"), setting("Skalentyp")};
    // Only where something sounds there is an instrument.
    if (!about.mode.isEmpty())
        about.branch = setting("Klangfarbe").isEmpty() ? Branch::Theory : Branch::Ear;
    const auto answeredOne = std::ranges::find_if(
        lessons, [](const Lesson& lesson) { return !lesson.answers.isEmpty(); });
    if (answeredOne != lessons.end())
        about.kind = answeredOne->answers.first().scale.isEmpty() ? Kind::Write : Kind::Identify;
    return about;
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
    ResultRecord record{
        attribute(properties, "programm"),
        attribute(properties, "ukey"),
        attribute(properties, "exercise"),
        attribute(properties, "description"),
        QDateTime::fromString(attribute(properties, "timestamp"), "dd.MM.yyyy HH:mm:ss"),
        {},
        {}};
    for (const auto& setting : root.child("settings").children("setting"))
        record.settings.append({attribute(setting, "key"), attribute(setting, "value")});
    for (const auto& lesson : root.child("lessons").children("lesson"))
        record.lessons.append(lessonOf(lesson));
    return record;
}

}  // namespace melvora
