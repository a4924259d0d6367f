#pragma once
#include "sim/simulation.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <sstream>
#include <string>
#include <vector>

namespace sim::test {

/// Options from a line as it would stand behind the program's name.
inline Options options(const std::string& line) {
    std::istringstream words(line);
    const std::vector<std::string> split{std::istream_iterator<std::string>(words), {}};
    std::vector<const char*> arguments;
    arguments.reserve(split.size());
    for (const std::string& word : split) arguments.push_back(word.c_str());
    return parseOptions(arguments);
}

/// One run with its trace.
struct TracedRun {
    explicit TracedRun(const std::string& line) : given(options(line)), simulation(given, &stream) {
        outcome = simulation.run();
        text = stream.str();
    }

    /// The trace's lines; a line that is no JSON object is an empty object.
    std::vector<QJsonObject> lines() const {
        std::vector<QJsonObject> all;
        std::istringstream in(text);
        for (std::string line; std::getline(in, line);)
            all.push_back(QJsonDocument::fromJson(QByteArray::fromStdString(line)).object());
        return all;
    }
    std::vector<QJsonObject> lines(const char* event) const {
        std::vector<QJsonObject> some;
        for (const QJsonObject& line : lines())
            if (line["e"].toString() == event) some.push_back(line);
        return some;
    }

    Options given;
    std::ostringstream stream;
    Simulation simulation;
    Outcome outcome;
    std::string text;
};

}  // namespace sim::test
