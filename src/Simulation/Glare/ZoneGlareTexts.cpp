#include "Simulation/Glare/ZoneGlareTexts.hpp"

#include <algorithm>
#include <cstddef>

#include "Simulation/Glare/ObserverGlare.hpp"
#include "Simulation/PrintedValue.hpp"

namespace Merivane::Simulation {

namespace {

constexpr double LimitTolerance = 1e-9;

const char* const NotForLines = " - o método tabular (luminárias em grade) não se aplica; use os "
                                "observadores (Inserir observador UGR)";

std::string Metres(double value) {
    return FormatDecimal(value, 2);
}

std::string RoomText(double x, double y, int decimals) {
    return FormatDecimal(x, decimals) + "H x " + FormatDecimal(y, decimals) + "H";
}

// Tables of glare head their columns by percents: "70/50/20".
std::string Percents(const ReflectanceSet& set) {
    const auto percent = [](double value) { return FormatDecimal(100.0 * value, 0); };
    return percent(set.ceiling) + "/" + percent(set.walls) + "/" + percent(set.floor);
}

const ReflectanceSet& SetOf(const TabularUgr& tabular) {
    return ReflectanceSets[static_cast<std::size_t>(tabular.reflectanceSet)];
}

std::string TabularLogLine(const ModelGlare& model, const ReflectanceSet& room) {
    const TabularUgr& tabular = model.tabular;
    return "  UGR tabular, " + model.name + " (" + std::to_string(model.count) + " un., H " +
           Metres(model.height) + " m): sala-padrao " + RoomText(tabular.roomX, tabular.roomY, 0) +
           " (Zona " + RoomText(tabular.ratioX, tabular.ratioY, 2) + "), refletancias " +
           Percents(SetOf(tabular)) + " (sala " + Percents(room) + ") " + FormatUgr(tabular.ugr) +
           (tabular.crosswise ? " (visada transversal)" : " (visada ao longo)") +
           "; sala de referencia 4H x 8H " + FormatUgr(model.referenceUgr);
}

std::string ReadingNote(const ModelGlare& model, const ReflectanceSet& room) {
    const TabularUgr& tabular = model.tabular;
    return "tabela CIE 117 lida na sala-padrão " + RoomText(tabular.roomX, tabular.roomY, 0) +
           " (a Zona tem " + RoomText(tabular.ratioX, tabular.ratioY, 2) + "), refletâncias " +
           Percents(SetOf(tabular)) + " (as da sala: " + Percents(room) +
           "), H = " + Metres(model.height) + " m";
}

std::string Value(const GlareResult& result) {
    return result.valid ? FormatUgr(result.ugr) : "sem valor";
}

} // namespace

std::string ModelLogLine(const ModelGlare& model, const ReflectanceSet& room) {
    switch (model.omission) {
    case TabularOmission::None:
        break;
    case TabularOmission::Linear:
        return model.name + ": fita / linear contínua" + NotForLines;
    case TabularOmission::BelowEye:
        return model.name + ": abaixo do olho (H" + Metres(model.height) +
               " m), fora do metodo tabular";
    case TabularOmission::NoOpening:
        return model.name + ": o IES nao informa a abertura luminosa (largura x comprimento) - UGR "
                            "sem luminancia";
    }
    return TabularLogLine(model, room);
}

std::string ModelNote(const ModelGlare& model, const ReflectanceSet& room, bool several) {
    const std::string which = several ? model.name + ": " : "";
    switch (model.omission) {
    case TabularOmission::None:
        break;
    case TabularOmission::Linear:
        return which + "Fita / linear contínua" + NotForLines;
    case TabularOmission::BelowEye:
        return model.name + ": abaixo do olho (H " + Metres(model.height) +
               " m), fora do método tabular";
    case TabularOmission::NoOpening:
        return model.name + ": o IES não informa a abertura luminosa (largura x comprimento) - UGR "
                            "sem luminância";
    }
    return which + ReadingNote(model, room);
}

std::string UpwardFluxWarning(const ModelGlare& model) {
    return model.name + ": " + FormatDecimal(100.0 * model.upwardFlux, 0) +
           "% da luz para cima - o metodo UGR nao vale acima de 65%";
}

std::string ObserverLogLine(const ObserverGlareRecord& record, double floorLevel) {
    const UgrObserver& observer = record.observer.observer;
    const std::string who = record.observer.placed
                                ? "colocado \"" + observer.label + "\" (olho a " +
                                      Metres(observer.z - floorLevel) + " m do piso): "
                                : observer.label + ": UGR ";
    return "  UGR observador " + who + Value(record.result) + " (Lb " +
           FormatDecimal(record.result.background, 2) + " cd/m2, " +
           std::to_string(record.result.sources) + " luminaria(s) no campo de visao)";
}

std::string PositionsNote(const std::vector<ObserverGlareRecord>& observers) {
    std::size_t atWalls = 0;
    GlareResult worst; // not valid until some observer has a value
    std::size_t placedCount = 0;
    std::string placed;
    for (const ObserverGlareRecord& record : observers) {
        const GlareResult& result = record.result;
        if (record.observer.placed) {
            ++placedCount;
            placed +=
                (placed.empty() ? "" : ", ") + record.observer.observer.label + " " + Value(result);
            continue;
        }
        ++atWalls;
        if (result.valid && (!worst.valid || result.ugr > worst.ugr)) {
            worst = result;
        }
    }
    std::string text;
    if (atWalls > 0) {
        text = std::to_string(atWalls) + " meio das paredes, máx. UGR " + Value(worst);
    }
    if (placedCount > 0) {
        text += (text.empty() ? "" : "; ") + std::to_string(placedCount) +
                " observadores colocados: " + placed;
    }
    return text.empty() ? "" : "Posições reais (só informativo, leiaute real): " + text;
}

std::string LimitLogLine(double ugr, std::int32_t ugrLimit) {
    const bool meets = ugrLimit + LimitTolerance >= PrintedValue(ugr, 1);
    return "  UGR da instalacao " + FormatUgr(ugr) + " / UGRL (maximo da atividade) " +
           std::to_string(ugrLimit) + (meets ? " - atende" : " - NAO ATENDE");
}

std::string NoLimitText(bool hasTask) {
    return hasTask ? "a atividade não tem UGRL na norma"
                   : "sem atividade definida na Zona: sem comparação com o UGRL";
}

std::string NoLimitNote(double ugr, bool hasTask) {
    return "UGR da instalação " + FormatUgr(ugr) + " - " + NoLimitText(hasTask);
}

std::string SmallSourceNote(const ZoneGlare& glare) {
    if (!glare.hasSmallSourceUgr || glare.smallSourceUgr <= 0.0) {
        return "";
    }
    return "Fonte pequena: pela CIE 147 o UGR seria " + FormatUgr(glare.smallSourceUgr) +
           " (só informativo)";
}

} // namespace Merivane::Simulation
