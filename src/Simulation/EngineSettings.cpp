#include "Simulation/EngineSettings.hpp"

#include <algorithm>
#include <array>
#include <cmath>

#include "Simulation/StoredText.hpp"
#include "Text/Number.hpp"

namespace Merivane::Simulation {

namespace {

constexpr std::uint32_t DesignProfile = 1;
constexpr std::uint32_t CustomProfile = 3;
constexpr std::string_view Header = "MerivaneEngine 1";

struct Profile {
    EngineSettings settings;
    const char* name;
    const char* description;
};

constexpr std::array<Profile, 4> Profiles{{
    {{0, 2, 256, 64, 128, 0.25, 0.005, 0},
     "Estudo rápido",
     "Para testar posições de luminárias e ver tendências. Cerca de 10 vezes mais rápido que o "
     "Projeto; os valores podem variar alguns por cento."},
    {{1, 2, 1024, 512, 256, 0.15, 0.002, 0},
     "Projeto",
     "O uso normal (padrão). Duas reflexões da luz, precisão adequada para dimensionar a "
     "iluminação."},
    {{2, 3, 1024, 512, 256, 0.12, 0.001, 0},
     "Apresentação / final",
     "Para memorial e entrega: três reflexões da luz, mais luz refletida nos cantos e áreas "
     "escuras. Cerca de 3 vezes o tempo do Projeto."},
    // Custom numbers only ever come from editing; asked for by number it is the normal use.
    {{1, 2, 1024, 512, 256, 0.15, 0.002, 0},
     "Personalizado",
     "Parâmetros escolhidos à mão (avançado)."},
}};

// Time relative to "Projeto", fitted to measured runs; not a simulation.
double RawCost(const EngineSettings& settings) {
    if (settings.bounces == 0) {
        return 0.02;
    }
    const double tolerance = 0.15 / std::max(settings.accuracy, 0.01);
    const double rays = static_cast<double>(settings.divisions) + settings.supersamples;
    return std::pow(1.8, settings.bounces - 2.0) * tolerance * tolerance *
           std::sqrt(settings.resolution / 256.0) * std::pow(rays / 1536.0, 0.74);
}

} // namespace

EngineSettings ProfileSettings(std::uint32_t profile) {
    return Profiles[profile < CustomProfile ? profile : DesignProfile].settings;
}

EngineSettings NormaliseSettings(const EngineSettings& settings) {
    EngineSettings result = settings;
    result.bounces = std::clamp(settings.bounces, 0, 8);
    result.divisions = std::clamp(settings.divisions, 64, 8192);
    result.supersamples = std::clamp(settings.supersamples, 0, 4096);
    result.resolution = std::clamp(settings.resolution, 16, 1024);
    result.accuracy = std::clamp(settings.accuracy, 0.05, 0.5);
    result.limitWeight = std::clamp(settings.limitWeight, 0.0001, 0.05);
    result.maxProcesses = std::clamp(settings.maxProcesses, 0, 64);
    return result;
}

bool SameSettings(const EngineSettings& a, const EngineSettings& b) {
    return a.bounces == b.bounces && a.divisions == b.divisions &&
           a.supersamples == b.supersamples && a.resolution == b.resolution &&
           std::abs(a.accuracy - b.accuracy) < 1e-9 &&
           std::abs(a.limitWeight - b.limitWeight) < 1e-12;
}

std::uint32_t DetectProfile(const EngineSettings& settings) {
    for (std::uint32_t profile = 0; profile < CustomProfile; ++profile) {
        if (SameSettings(settings, ProfileSettings(profile))) {
            return profile;
        }
    }
    return CustomProfile;
}

std::string ProfileName(std::uint32_t profile) {
    return profile <= CustomProfile ? Profiles[profile].name : "";
}

std::string ProfileDescription(std::uint32_t profile) {
    return profile <= CustomProfile ? Profiles[profile].description : "";
}

std::string EngineSummary(const EngineSettings& settings) {
    const std::uint32_t profile = DetectProfile(settings);
    std::string summary = ProfileName(profile) + " (reflexões " + std::to_string(settings.bounces) +
                          ", raios " + std::to_string(settings.divisions);
    if (profile == CustomProfile) {
        summary += ", supers. " + std::to_string(settings.supersamples) + ", res. " +
                   std::to_string(settings.resolution) + ", toler. " +
                   Text::FormatGeneral(settings.accuracy) + ", limite " +
                   Text::FormatGeneral(settings.limitWeight);
    }
    return summary + ")";
}

std::vector<std::string> EngineWarnings(const EngineSettings& settings) {
    std::vector<std::string> warnings;
    const auto warn = [&](bool applies, const char* text) {
        if (applies) {
            warnings.emplace_back(text);
        }
    };
    warn(settings.bounces == 0,
         "Sem reflexões: só a luz direta das luminárias. Paredes e teto não devolvem luz e o "
         "ambiente fica bem mais escuro que na realidade.");
    warn(settings.bounces == 1,
         "Uma reflexão só: a luz refletida fica subestimada em ambientes claros.");
    warn(settings.bounces >= 5,
         "Mais de 4 reflexões raramente muda o resultado e multiplica o tempo.");
    warn(settings.divisions < 256,
         "Poucos raios por ponto: a luz refletida fica manchada (ruído).");
    warn(settings.accuracy > 0.3,
         "Tolerância alta: a luz refletida é muito suavizada e detalhes somem.");
    warn(CostFactor(settings) > 6.0,
         "Configuração pesada: o cálculo deve levar mais de 6 vezes o perfil Projeto.");
    return warnings;
}

double CostFactor(const EngineSettings& settings) {
    return std::max(0.01, RawCost(settings) / RawCost(ProfileSettings(DesignProfile)));
}

bool ParseEngineSettings(std::string_view text, EngineSettings& settings) {
    settings = ProfileSettings(DesignProfile);
    EngineSettings read;
    std::int32_t profile = 0;
    const bool complete = TakeHeaderLine(text, Header) && TakeInteger(text, profile) &&
                          TakeInteger(text, read.bounces) && TakeInteger(text, read.divisions) &&
                          TakeInteger(text, read.supersamples) &&
                          TakeInteger(text, read.resolution) && TakeNumber(text, read.accuracy) &&
                          TakeNumber(text, read.limitWeight) &&
                          TakeInteger(text, read.maxProcesses);
    if (!complete || profile < 0 || profile > static_cast<std::int32_t>(CustomProfile)) {
        return false;
    }
    settings = NormaliseSettings(read);
    settings.profile = DetectProfile(settings);
    return true;
}

std::string FormatEngineSettings(const EngineSettings& settings) {
    return std::string(Header) + "\n" + std::to_string(settings.profile) + " " +
           std::to_string(settings.bounces) + " " + std::to_string(settings.divisions) + " " +
           std::to_string(settings.supersamples) + " " + std::to_string(settings.resolution) + " " +
           Text::FormatShortest(settings.accuracy) + " " +
           Text::FormatShortest(settings.limitWeight) + " " +
           std::to_string(settings.maxProcesses) + "\n";
}

} // namespace Merivane::Simulation
