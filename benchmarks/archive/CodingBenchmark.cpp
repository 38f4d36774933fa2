// Reading and writing an archive as large as one may be imported, beside a bare parse of the same
// text and RapidJSON writing the same document.

#include "benchmarks/archive/MadeUpArchive.h"

#include <benchmark/benchmark.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <simdjson.h>

#include <string>

namespace quillmere::benchmarks {

namespace {

const TimeBankArchive& largeArchive() {
    static const TimeBankArchive shared = madeUpArchive(0, 76'000, 0, 1, 0.25);
    return shared;
}

const std::string& largeDocument() {
    static const std::string shared = largeArchive().encodedJSON();
    return shared;
}

void limitSimdjsonParse(benchmark::State& state) {
    const std::string& text = largeDocument();
    for ([[maybe_unused]] auto _ : state) {
        simdjson::dom::parser parser;
        benchmark::DoNotOptimize(parser.parse(text).error());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(text.size() * state.iterations()));
}
BENCHMARK(limitSimdjsonParse)->Unit(benchmark::kMillisecond);

void decodeArchive(benchmark::State& state) {
    const std::string& text = largeDocument();
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(TimeBankArchive::decodeJSON(text).recordCount());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(text.size() * state.iterations()));
}
BENCHMARK(decodeArchive)->Unit(benchmark::kMillisecond);

template <class Writer>
void writeText(Writer& writer, const std::string& text) {
    writer.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
}

void limitRapidJsonWrite(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        rapidjson::StringBuffer out;
        rapidjson::PrettyWriter writer(out);
        writer.SetIndent(' ', 2);
        writer.StartObject();
        writer.Key("balanceAdjustments");
        writer.StartArray();
        for (const auto& record : largeArchive().balanceAdjustments) {
            writer.StartObject();
            writer.Key("createdAt");
            writer.Double(record.createdAt.secondsSince1970);
            writer.Key("date");
            writer.Double(record.date.secondsSince1970);
            writer.Key("id");
            writeText(writer, record.id.text());
            writer.Key("kind");
            writeText(writer, record.kind);
            writer.Key("minutes");
            writer.Int64(record.minutes);
            writer.Key("modifiedAt");
            writer.Double(record.modifiedAt.secondsSince1970);
            writer.Key("note");
            writeText(writer, record.note);
            writer.EndObject();
        }
        writer.EndArray();
        writer.EndObject();
        benchmark::DoNotOptimize(out.GetSize());
    }
}
BENCHMARK(limitRapidJsonWrite)->Unit(benchmark::kMillisecond);

void encodeArchive(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(largeArchive().encodedJSON().size());
    }
}
BENCHMARK(encodeArchive)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace quillmere::benchmarks
