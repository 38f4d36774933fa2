#pragma once

#include "Platform/dbus/MessageReader.h"
#include "Platform/dbus/MessageWriter.h"

#include <cstdint>
#include <map>
#include <string>
#include <tuple>
#include <variant>
#include <vector>

namespace platform::dbus {

/// How a C++ type travels: its signature, and reading and writing it. A vector is an array, a tuple
/// a structure, a map a dictionary, and a variant a variant of one of its types.
template <class T>
struct Wire;

/// A type that is its own bytes.
template <class T, char Code>
struct FixedWire {
    [[nodiscard]] static std::string signature() { return {Code}; }
    [[nodiscard]] static T read(MessageReader& reader) {
        T value{};
        reader.fixed(Code, &value);
        return value;
    }
    static void write(MessageWriter& writer, T value) { writer.fixed(Code, &value); }
};

template <>
struct Wire<std::int32_t> : FixedWire<std::int32_t, 'i'> {};
template <>
struct Wire<std::uint32_t> : FixedWire<std::uint32_t, 'u'> {};
template <>
struct Wire<std::int64_t> : FixedWire<std::int64_t, 'x'> {};
template <>
struct Wire<double> : FixedWire<double, 'd'> {};

template <>
struct Wire<std::string> {
    [[nodiscard]] static std::string signature() { return "s"; }
    [[nodiscard]] static std::string read(MessageReader& reader) { return reader.string(); }
    static void write(MessageWriter& writer, const std::string& text) { writer.string(text); }
};

template <class T>
struct Wire<std::vector<T>> {
    [[nodiscard]] static std::string signature() { return "a" + Wire<T>::signature(); }
    [[nodiscard]] static std::vector<T> read(MessageReader& reader) {
        std::vector<T> values;
        reader.enterArray(Wire<T>::signature());
        while (reader.hasMore()) {
            values.push_back(Wire<T>::read(reader));
        }
        reader.exitArray();
        return values;
    }
    static void write(MessageWriter& writer, const std::vector<T>& values) {
        writer.open(MessageWriter::Container::array, Wire<T>::signature());
        for (const T& value : values) {
            Wire<T>::write(writer, value);
        }
        writer.close();
    }
};

template <class... Ts>
struct Wire<std::tuple<Ts...>> {
    [[nodiscard]] static std::string members() {
        return (std::string() + ... + Wire<Ts>::signature());
    }
    [[nodiscard]] static std::string signature() { return "(" + members() + ")"; }
    static void write(MessageWriter& writer, const std::tuple<Ts...>& values) {
        writer.open(MessageWriter::Container::structure, members());
        std::apply([&](const Ts&... value) { (Wire<Ts>::write(writer, value), ...); }, values);
        writer.close();
    }
};

template <class... Ts>
struct Wire<std::variant<Ts...>> {
    [[nodiscard]] static std::string signature() { return "v"; }
    static void write(MessageWriter& writer, const std::variant<Ts...>& value) {
        std::visit(
            [&]<class T>(const T& held) {
                writer.open(MessageWriter::Container::variant, Wire<T>::signature());
                Wire<T>::write(writer, held);
                writer.close();
            },
            value);
    }
};

template <class K, class V>
struct Wire<std::map<K, V>> {
    [[nodiscard]] static std::string members() {
        return Wire<K>::signature() + Wire<V>::signature();
    }
    [[nodiscard]] static std::string signature() { return "a{" + members() + "}"; }
    static void write(MessageWriter& writer, const std::map<K, V>& entries) {
        writer.open(MessageWriter::Container::array, "{" + members() + "}");
        for (const auto& [key, value] : entries) {
            writer.open(MessageWriter::Container::dictionaryEntry, members());
            Wire<K>::write(writer, key);
            Wire<V>::write(writer, value);
            writer.close();
        }
        writer.close();
    }
};

/// What desktops call "a{sv}": named details of various types.
using Details = std::map<std::string, std::variant<std::string>>;

} // namespace platform::dbus
