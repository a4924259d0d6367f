#include "soundfont/measurer.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <utility>

namespace soundfont {

Measurer::Measurer(const std::filesystem::path& tool, const std::string& font,
                   const std::vector<int>& programs) {
    std::vector<std::string> words{tool.string(), font};
    words.reserve(words.size() + programs.size());
    for (const int program : programs) words.push_back(std::to_string(program));
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);

    std::array<int, 2> pipe{};
    if (pipe2(pipe.data(), O_CLOEXEC) != 0) return;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, pipe[1], STDOUT_FILENO);
    const bool started = posix_spawn(&process_, arguments.front(), &actions, nullptr,
                                     arguments.data(), environ) == 0;
    posix_spawn_file_actions_destroy(&actions);
    close(pipe[1]);
    output_ = pipe[0];
    if (started) return;
    process_ = -1;
    close(std::exchange(output_, -1));
}

Measurer::~Measurer() {
    if (output_ >= 0) close(output_);
    if (process_ < 0) return;
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
}

std::optional<std::string> Measurer::line(std::chrono::milliseconds patience) {
    if (auto found = firstLine()) return found;
    if (ended()) return {};
    pollfd waited{output_, POLLIN, 0};
    if (poll(&waited, 1, static_cast<int>(patience.count())) <= 0) return {};
    std::array<char, 4096> part{};
    const ssize_t count = read(output_, part.data(), part.size());
    if (count <= 0) {
        close(std::exchange(output_, -1));
        return {};
    }
    text_.append(part.data(), static_cast<std::size_t>(count));
    return firstLine();
}

std::optional<std::string> Measurer::firstLine() {
    const std::size_t end = text_.find('\n');
    if (end == std::string::npos) return {};
    std::string line = text_.substr(0, end);
    text_.erase(0, end + 1);
    return line;
}

}  // namespace soundfont
