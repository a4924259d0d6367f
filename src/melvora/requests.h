#pragma once
#include "core/value.h"
#include "melvora/host.h"

#include <QString>

#include <cstddef>
#include <functional>
#include <optional>
#include <stdexcept>

namespace melvora {

// clang-format off
/// Answers the modules' requests.
///
/// | key     | argument                                 | result |
/// |---------|------------------------------------------|--------|
/// | APP     |                                          | ("melvora.exe", started executable or "") |
/// | MIDI    |                                          | device number as text |
/// | LANG    |                                          | name of the language |
/// | LOGIN   |                                          | (key, name, first name, matriculation) |
/// | READ    | (executable, key)                        | the record, ("", "NIL") when there is none |
/// | STORE   | (executable, key, record)                | why it was refused, when it was |
/// | LOGMESS | text                                     | |
/// | LOGERR  | (procedure, number, description, source) | |
/// | MENUE   |                                          | shows the menu |
/// | RAISE   | nothing, a module to start, or (module, absolute path of its file of settings) | raises the window: a second host sends it |
// clang-format on
class Requests {
  public:
    /// Most bytes of one record.
    static constexpr std::size_t largestRecord = std::size_t{8} << 20;

    /// Hears once whether the request was carried out, and its result.
    using Reply = std::function<void(bool carriedOut, const core::Value& result)>;

    explicit Requests(Host& host) : host_(host) {}

    /// Replies at once; to READ and STORE, where another program holds the store, as soon as that
    /// is free, and after Turns::patience in any case. One that cannot be carried out is refused,
    /// with a line in the log.
    /// @param argument nothing when it was of a type that no value has
    /// @param standard the result unless the request gives one
    void answer(const QString& key, std::optional<core::Value> argument,
                const core::Value& standard, const Reply& reply);

  private:
    class Refusal : public std::runtime_error {
      public:
        explicit Refusal(const QString& cause) : std::runtime_error(cause.toStdString()) {}
    };
    using Handler = void (Requests::*)(const core::Value& argument, core::Value& result);
    struct Row {
        const char* key;
        Handler handler;
        bool usesStore = false;
    };

    static const Row* rowOf(const QString& key);

    void app(const core::Value&, core::Value& result);
    void midi(const core::Value&, core::Value& result);
    void lang(const core::Value&, core::Value& result);
    void login(const core::Value&, core::Value& result);
    void read(const core::Value& argument, core::Value& result);
    void store(const core::Value& argument, core::Value&);
    void logMessage(const core::Value& argument, core::Value&);
    void logError(const core::Value& argument, core::Value&);
    void menue(const core::Value&, core::Value&);
    void raise(const core::Value& argument, core::Value&);

    void tell(const QString& key, const std::exception& fault);
    void refuse(const QString& key, const QString& cause);

    Records::Address addressIn(const core::Value& argument) const;

    Host& host_;
    QString refused_;  ///< what was refused last
    int times_ = 0;    ///< how often, one after the other
};

}  // namespace melvora
