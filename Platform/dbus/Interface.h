#pragma once

#include "Platform/dbus/Wire.h"

#include <functional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace platform::dbus {

/// What an object offers under one interface name: methods with typed arguments.
///
///     Interface("org.example.Sums").add("Add", {"a", "b"}, {"sum"},
///         std::function([](std::int64_t a, std::int64_t b) { return a + b; }));
///
/// A method answers nothing, one value, or a tuple, whose elements are the arguments of the answer.
/// It may throw `MethodError`; whatever else it throws is answered as
/// "org.freedesktop.DBus.Error.Failed" with the exception's words.
class Interface {
public:
    /// A method as it is offered: its arguments by signature and name, and what a call does.
    struct Method {
        std::string name;
        std::string inSignature;
        std::string outSignature;
        std::vector<std::string> argumentNames; ///< those of the call, then those of the answer
        std::function<void(MessageReader&, MessageWriter&)> call;
    };

    explicit Interface(std::string name) : name_(std::move(name)) {}

    /// `in` and `out` name each argument of the call and of the answer.
    template <class Result, class... Arguments>
    Interface& add(std::string name, std::vector<std::string> in, std::vector<std::string> out,
                   std::function<Result(Arguments...)> handler) {
        in.insert(in.end(), out.begin(), out.end());
        methods_.push_back(
            {std::move(name), (std::string() + ... + Wire<std::decay_t<Arguments>>::signature()),
             Answer<Result>::signature(), std::move(in),
             [handler = std::move(handler)](MessageReader& reader, MessageWriter& writer) {
                 // Braces, for they are read from left to right.
                 std::tuple<std::decay_t<Arguments>...> arguments{
                     Wire<std::decay_t<Arguments>>::read(reader)...};
                 if constexpr (std::is_void_v<Result>) {
                     std::apply(handler, std::move(arguments));
                 } else {
                     Answer<Result>::write(writer, std::apply(handler, std::move(arguments)));
                 }
             }});
        return *this;
    }

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] const std::vector<Method>& methods() const { return methods_; }

private:
    template <class Result>
    struct Answer : Wire<Result> {};

    std::string name_;
    std::vector<Method> methods_;
};

template <>
struct Interface::Answer<void> {
    [[nodiscard]] static std::string signature() { return {}; }
};

template <class... Ts>
struct Interface::Answer<std::tuple<Ts...>> {
    [[nodiscard]] static std::string signature() { return Wire<std::tuple<Ts...>>::members(); }
    static void write(MessageWriter& writer, const std::tuple<Ts...>& values) {
        std::apply([&](const Ts&... value) { (Wire<Ts>::write(writer, value), ...); }, values);
    }
};

} // namespace platform::dbus
