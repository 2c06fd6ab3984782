// Reads and writes an index as a catalogue publishes it (about 5 MB, made here, always the same)
// with our JSON and with nlohmann-json, both into and out of a document in memory, in turns in one
// process. Prints the medians and the ratios; above 1 ours is faster.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "Catalog/Json.hpp"

namespace {

using namespace Merivane;
using Catalog::JsonValue;

constexpr int Repetitions = 25;

double Below(std::mt19937& random, unsigned limit) {
    return static_cast<double>(random() % limit);
}

JsonValue MakePhotometry(std::mt19937& random) {
    JsonValue photometry;
    photometry.Set("fluxo", JsonValue::MakeNumber(Below(random, 40000) / 10.0));
    photometry.Set("potencia", JsonValue::MakeNumber(Below(random, 900) / 10.0));
    photometry.Set("temperaturaDeCor", JsonValue::MakeNumber(2700.0 + Below(random, 5) * 500.0));
    photometry.Set("irc", JsonValue::MakeNumber(80.0 + Below(random, 18)));
    JsonValue& curve = photometry.Set("curva", JsonValue::MakeArray());
    for (int i = 0; i < 19; ++i) {
        const double candela =
            Below(random, 10000000) / 1e4; // as printed; every other at full length
        curve.items.push_back(JsonValue::MakeNumber(i % 2 == 0 ? candela : candela / 7.0));
    }
    return photometry;
}

JsonValue MakeProduct(std::mt19937& random, int number) {
    const std::string code = "AE-" + std::to_string(10000 + number);
    JsonValue product;
    product.Set("codigo", JsonValue::MakeString(code));
    product.Set("nome", JsonValue::MakeString("Luminária de embutir \"Clarão\" " + code));
    product.Set("fabricante", JsonValue::MakeString("Ateliê Exemplo"));
    product.Set("descricao", JsonValue::MakeString(
                                 "Corpo em alumínio injetado, difusor em policarbonato leitoso,"
                                 " pintura eletrostática branca.\nInstalação em forro."));
    product.Set("arquivo", JsonValue::MakeString("produtos/" + code + "/produto.json"));
    product.Set("ativo", JsonValue::MakeBool(random() % 8 != 0));
    product.Set("substituto", JsonValue());
    product.Set("fotometria", MakePhotometry(random));
    JsonValue& labels = product.Set("etiquetas", JsonValue::MakeArray());
    for (const char* label : {"interior", "embutir", "escritório"}) {
        labels.items.push_back(JsonValue::MakeString(label));
    }
    return product;
}

std::string MakeIndex() {
    std::mt19937 random(1);
    JsonValue index;
    index.Set("formato", JsonValue::MakeNumber(1));
    JsonValue& products = index.Set("produtos", JsonValue::MakeArray());
    for (int i = 0; i < 5500; ++i) {
        products.items.push_back(MakeProduct(random, i));
    }
    return Catalog::JsonWrite(index);
}

double Median(std::vector<double> seconds) {
    std::sort(seconds.begin(), seconds.end());
    return seconds[seconds.size() / 2];
}

template <class Work> void Measure(std::vector<double>& seconds, const Work& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    seconds.push_back(
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
}

void Print(const char* what, const std::vector<double>& ours, const std::vector<double>& peer,
           std::size_t bytes) {
    const double megabytes = static_cast<double>(bytes) / 1e6;
    std::printf("%-7s ours %7.2f ms (%4.0f MB/s)   nlohmann-json %7.2f ms (%4.0f MB/s)   %.2f x\n",
                what, Median(ours) * 1e3, megabytes / Median(ours), Median(peer) * 1e3,
                megabytes / Median(peer), Median(peer) / Median(ours));
}

} // namespace

int main() {
    const std::string text = MakeIndex();
    std::printf("index of %.2f MB, medians of %d turns\n", static_cast<double>(text.size()) / 1e6,
                Repetitions);
    std::vector<double> ourReading, ourWriting, ourEnd;
    std::vector<double> peerReading, peerWriting, peerEnd;
    for (int i = 0; i < Repetitions; ++i) {
        JsonValue ours;
        Measure(ourReading, [&] {
            if (!Catalog::JsonParse(text, ours).ok) {
                std::abort();
            }
        });
        nlohmann::json peer;
        Measure(peerReading, [&] { peer = nlohmann::json::parse(text); });
        std::string ourText, peerText;
        Measure(ourWriting, [&] { ourText = Catalog::JsonWrite(ours); });
        Measure(peerWriting, [&] { peerText = peer.dump(1, '\t'); });
        if (ourText != text || peerText.size() < text.size() / 2) {
            std::abort();
        }
        Measure(ourEnd, [&] { ours = JsonValue(); });
        Measure(peerEnd, [&] { peer = nlohmann::json(); });
    }
    Print("read", ourReading, peerReading, text.size());
    Print("write", ourWriting, peerWriting, text.size());
    Print("release", ourEnd, peerEnd, text.size());
    return 0;
}
