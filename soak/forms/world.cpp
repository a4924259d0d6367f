#include "forms/world.h"

#include "base/whole_file.h"

#include <fstream>
#include <iterator>
#include <vector>

namespace soak {

class UnsteadyHost::Link final : public core::HostPort {
  public:
    explicit Link(UnsteadyHost& host) : host_(host), link_(host.memory_.factory()()) {}

    bool request(const std::string& key, const core::Value& argument,
                 core::Value& result) override {
        base::Rnd& chance = host_.chance_;
        const Weather& weather = host_.weather;
        const auto strikes = [&](int oneIn) { return oneIn > 0 && oncePer(chance, oneIn); };
        if (key == "LOGERR") {
            const auto number = argument.at(1).text();
            ++host_.tally_.reached["errors told"];
            host_.error(std::stoi(number), argument.at(0).text() + ": " + argument.at(2).text());
        }
        if (host_.gone || strikes(weather.lostCalls)) {
            ++host_.tally_.reached["host calls lost"];
            throw core::HostGone("nobody answers");
        }
        if (key == "STORE" && strikes(weather.refusals)) {
            ++host_.tally_.reached["records refused"];
            if (oncePer(chance, 2)) result = "the disk is full";
            return false;
        }
        if (key == "LOGIN" && oncePer(chance, 2)) {
            result = core::Value::Array{"u7", "Weber", "Clara", "4711"};
            return true;
        }
        if (key == "MIDI" && oncePer(chance, 3)) {
            constexpr std::array answers{"", "0", "3", "99999", "x"};
            result = answers.at(static_cast<std::size_t>(int(chance.below(int(answers.size())))));
            return !oncePer(chance, 4);
        }
        if (key == "STORE" && argument.at(1).text().starts_with("A") &&
            argument.at(2).at(0).text() == "true")
            ++host_.tally_.reached["trainings saved"];
        const bool answer = link_->request(key, argument, result);
        if (key == "READ" && strikes(weather.damaged)) host_.damage(result);
        return answer;
    }

  private:
    UnsteadyHost& host_;
    std::unique_ptr<core::HostPort> link_;
};

core::Host::Factory UnsteadyHost::factory() {
    return [this]() -> std::unique_ptr<core::HostPort> {
        if (!present) return nullptr;
        return std::make_unique<Link>(*this);
    };
}

/// One element is another, or is missing.
void UnsteadyHost::damage(core::Value& record) {
    if (!record.isArray() || record.items().empty()) return;
    ++tally_.reached["records damaged"];
    core::Value::Array items = record.items();
    const auto at = static_cast<std::size_t>(int(chance_.below(static_cast<int>(items.size()))));
    switch (chance_.below(5)) {
        case 0:
            items.resize(at);
            break;
        case 1:
            items[at] = "no number";
            break;
        case 2:
            items[at] = std::to_string(chance_.below(100000) - 50000);
            break;
        case 3:
            items[at] = core::Value();
            break;
        default:
            items.insert(items.begin() + static_cast<std::ptrdiff_t>(at), items[at]);
    }
    record = std::move(items);
}

/// A box stays for a while, and everything but the user goes on.
void Answers::pass() {
    ++open_;
    loop_.advance(oncePer(chance_, 8) ? chance_.below(30000) : chance_.below(900));
    --open_;
}

void Answers::message(form::Icon, const std::string& title, const std::string& text) {
    tally_.note("box " + title + ": " + text.substr(0, 60));
    ++tally_.reached["boxes"];
    pass();
}

bool Answers::askYesNo(const std::string&, const std::string&) {
    pass();
    const bool yes = !oncePer(chance_, 3);
    tally_.note(yes ? "answers yes" : "answers no");
    return yes;
}

std::string Answers::path() {
    switch (chance_.below(9)) {
        case 0:
            return "";
        case 1:
            return (folder_ / "missing" / "a.mvs").string();
        case 2:
            return folder_.string();
        case 3:
        case 4:
        case 5:
            return damages ? damagedFile() : (folder_ / "z.mvs").string();
        default:
            return (folder_ / (std::string(1, static_cast<char>('a' + chance_.below(3))) + ".mvs"))
                .string();
    }
}

/// A good file with some bytes changed, or what is no file of settings at all.
std::string Answers::damagedFile() {
    std::ifstream good(folder_ / "a.mvs", std::ios::binary);
    std::string text(std::istreambuf_iterator<char>(good), {});
    if (text.empty() || oncePer(chance_, 4)) text = "<test><control>";
    for (int i = chance_.upTo(6); i > 0; --i)
        text.at(static_cast<std::size_t>(int(chance_.below(static_cast<int>(text.size()))))) =
            static_cast<char>(chance_.below(256));
    if (oncePer(chance_, 3))
        text.resize(static_cast<std::size_t>(int(chance_.below(static_cast<int>(text.size())))));
    const auto path = folder_ / "damaged.mvs";
    std::ofstream(path, std::ios::binary) << text;
    ++tally_.reached["files damaged"];
    return path.string();
}

std::string Answers::askOpenFile(const FileQuestion&) {
    pass();
    std::string chosen = path();
    tally_.note("opens " + chosen);
    return chosen;
}

std::string Answers::askSaveFile(const FileQuestion& question) {
    pass();
    std::string chosen = oncePer(chance_, 6) ? question.proposal : path();
    tally_.note("saves as " + chosen);
    return chosen;
}

void TimedOutput::check(const sound::MidiEvent& event) {
    const bool bytes = event.status >= 0x80 && event.status < 0xF0 && event.data1 >= 0 &&
                       event.data1 < 128 && event.data2 >= 0 && event.data2 < 128;
    tally_.law(bytes, "bytes of MIDI: " + std::to_string(event.status) + " " +
                          std::to_string(event.data1) + " " + std::to_string(event.data2));
}

void TimedOutput::queue(const sound::MidiEvent& event) {
    check(event);
    tally_.law(event.time >= 0, "a time before the queue");
    tally_.law(mayPlay(), "something sounds where nothing is to sound");
    length_ = std::max(length_, int(event.time));
}

void TimedOutput::send(const sound::MidiEvent& event) { check(event); }

void TimedOutput::start() {
    end_ = loop_.after(length_, [this] {
        if (queueEmpty) queueEmpty();
    });
}

void TimedOutput::stop() {
    end_ = {};
    length_ = 0;
}

}  // namespace soak
