#include "Simulation/ReflectanceTexts.hpp"

#include <algorithm>
#include <cmath>

#include "Text/Number.hpp"

namespace Merivane::Simulation {

namespace {

std::string Percent(double share) {
    return Text::FormatFixed(share * 100.0, 0);
}

std::string ValueCell(const StoredReflectance& values) {
    if (!values.glass) {
        return Percent(values.reflectance) + " %";
    }
    return "T " + Percent(values.transmittance) + " R " + Percent(values.reflectanceInside) + "/" +
           Percent(values.reflectanceOutside);
}

std::string OriginCell(ReflectanceSource source) {
    switch (source) {
    case ReflectanceSource::Colour:
        return "estimada pela cor";
    case ReflectanceSource::Orientation:
        return "padrao (orientacao)";
    case ReflectanceSource::CorrectedBefore:
        return "corrigida antes";
    case ReflectanceSource::CorrectedNow:
        break;
    }
    return "corrigida agora";
}

std::string ByteOf(double channel) {
    return std::to_string(std::lround(std::clamp(channel, 0.0, 1.0) * 255.0));
}

} // namespace

std::string ReflectanceHeadLine(std::size_t count) {
    return std::to_string(count) +
           " superficie(s) na cena. Selecione uma linha para corrigir a refletancia.";
}

std::array<std::string, ReflectanceColumns.size()>
ReflectanceCells(const SurfaceReflectance& record) {
    return {
        record.name, Text::FormatFixed(record.area, 2),
        ValueCell({record.estimatedReflectance, record.estimatedGlass,
                   record.estimatedTransmittance, record.estimatedInside, record.estimatedOutside}),
        ValueCell({record.reflectance, record.glass, record.transmittance, record.reflectanceInside,
                   record.reflectanceOutside}),
        OriginCell(record.source)};
}

std::string ReflectanceExplanation(const SurfaceReflectance& record) {
    if (!record.hasColour) {
        return "Faces sem Superficie no modelo 3D: valor padrao pela orientacao (piso 20 %, parede "
               "50 %, teto 70 %).";
    }
    return "Estimativa pela cor RGB " + ByteOf(record.red) + ", " + ByteOf(record.green) + ", " +
           ByteOf(record.blue) + " (transparencia " + Percent(record.transparency) +
           " %) -> refletancia " + Percent(record.estimatedReflectance) + " %" +
           (record.estimatedGlass ? ", vidro" : "") +
           ". A cor de uma Superficie e escolhida para o render, nao medida: confira com o "
           "fabricante quando puder.";
}

} // namespace Merivane::Simulation
