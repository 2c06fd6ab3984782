#include "IesSamples.hpp"

#include <cmath>
#include <string_view>

#include <gtest/gtest.h>

#include "Text/Number.hpp"

namespace Merivane::Tests {

using Photometry::IesFile;

namespace {

constexpr std::string_view Letters = "AZ az09[]=-.,\xC3\xA7\xB0(\")";

std::string Texts(const std::vector<double>& values) {
    std::string text;
    for (const double value : values) {
        text += Text::FormatShortest(value) + " ";
    }
    return text;
}

std::vector<double> Ascending(std::mt19937_64& random, std::size_t count) {
    std::uniform_real_distribution<double> step(1e-3, 9.0);
    std::vector<double> values = {random() % 2 == 0 ? 0.0 : step(random) - 100.0};
    while (values.size() < count) {
        values.push_back(values.back() + step(random));
    }
    return values;
}

std::string RandomWord(std::mt19937_64& random) {
    std::string word = "w";
    for (std::size_t i = random() % 12; i > 0; --i) {
        word += Letters[random() % Letters.size()];
    }
    return word + "w";
}

} // namespace

IesFile MakeTable(std::vector<double> verticals, std::vector<double> horizontals,
                  const std::function<double(double, double)>& intensity) {
    IesFile file;
    for (const double horizontal : horizontals) {
        file.candela.emplace_back();
        for (const double vertical : verticals) {
            file.candela.back().push_back(intensity(vertical, horizontal));
        }
    }
    file.verticalAngles = std::move(verticals);
    file.horizontalAngles = std::move(horizontals);
    return file;
}

std::vector<double> Steps(double first, double last, double step) {
    std::vector<double> values;
    for (int i = 0; first + i * step <= last + step / 2; ++i) {
        values.push_back(first + i * step);
    }
    return values;
}

IesFile RandomFile(std::mt19937_64& random) {
    std::normal_distribution<double> number(0.0, 1000.0);
    IesFile file =
        MakeTable(Ascending(random, 1 + random() % 25), Ascending(random, 1 + random() % 25),
                  [&](double, double) { return std::abs(number(random)); });
    file.formatVersion = static_cast<int>(random() % 5);
    for (std::size_t i = random() % 4; i > 0; --i) {
        file.keywords.emplace_back("_K" + std::to_string(i), RandomWord(random));
        file.keywords.emplace_back("LAMP", RandomWord(random) + "\n" + RandomWord(random));
    }
    file.tiltMode = static_cast<int>(random() % 3);
    if (file.tiltMode == 1) {
        file.tiltGeometry = 1 + static_cast<int>(random() % 3);
        file.tiltAngles = Ascending(random, 1 + random() % 21);
        file.tiltFactors.assign(file.tiltAngles.size(), number(random));
    } else if (file.tiltMode == 2) {
        file.tiltFile = RandomWord(random);
    }
    file.lampCount = static_cast<int>(random() % 200);
    file.lumensPerLamp = random() % 2 == 0 ? -1.0 : number(random);
    file.candelaMultiplier = number(random);
    file.photometricType = 1 + static_cast<int>(random() % 3);
    file.unitsType = 1 + static_cast<int>(random() % 2);
    file.width = number(random);
    file.length = number(random) * 1e-300;
    file.height = number(random) * 1e300;
    file.ballastFactor = number(random);
    file.futureUse = number(random);
    file.inputWatts = number(random);
    return file;
}

void ExpectSameNumbers(const IesFile& a, const IesFile& b) {
    EXPECT_EQ(a.tiltMode, b.tiltMode);
    EXPECT_EQ(a.tiltFile, b.tiltFile);
    EXPECT_EQ(a.tiltGeometry, b.tiltGeometry);
    EXPECT_EQ(Texts(a.tiltAngles), Texts(b.tiltAngles));
    EXPECT_EQ(Texts(a.tiltFactors), Texts(b.tiltFactors));
    EXPECT_EQ(a.lampCount, b.lampCount);
    EXPECT_EQ(a.photometricType, b.photometricType);
    EXPECT_EQ(a.unitsType, b.unitsType);
    EXPECT_EQ(Texts({a.lumensPerLamp, a.candelaMultiplier, a.width, a.length, a.height,
                     a.ballastFactor, a.futureUse, a.inputWatts}),
              Texts({b.lumensPerLamp, b.candelaMultiplier, b.width, b.length, b.height,
                     b.ballastFactor, b.futureUse, b.inputWatts}));
    EXPECT_EQ(Texts(a.verticalAngles), Texts(b.verticalAngles));
    EXPECT_EQ(Texts(a.horizontalAngles), Texts(b.horizontalAngles));
    ASSERT_EQ(a.candela.size(), b.candela.size());
    for (std::size_t i = 0; i < a.candela.size(); ++i) {
        EXPECT_EQ(Texts(a.candela[i]), Texts(b.candela[i])) << "row " << i;
    }
}

std::string SmallText(const std::string& header) {
    return header + "1 1000 1 3 1 1 2 0.1 0.2 0\n1 1 10\n0 45 90\n0\n100 50 0\n";
}

} // namespace Merivane::Tests
