#include "Workbench/Project/FileWords.hpp"

namespace Merivane::Workbench {

namespace {

using Host::ElementType;
using Host::FillKind;
using Host::ParameterType;
using Host::TextAnchor;
using Host::WindowType;

constexpr Word<ElementType> ElementTypes[] = {
    {ElementType::Wall, "parede"},
    {ElementType::Column, "pilar"},
    {ElementType::Beam, "viga"},
    {ElementType::Window, "janela"},
    {ElementType::Door, "porta"},
    {ElementType::Object, "objeto"},
    {ElementType::Lamp, "luminaria"},
    {ElementType::Slab, "laje"},
    {ElementType::Roof, "cobertura"},
    {ElementType::Mesh, "terreno"},
    {ElementType::Dimension, "cota"},
    {ElementType::Text, "texto"},
    {ElementType::Label, "etiqueta"},
    {ElementType::Zone, "zona"},
    {ElementType::Hatch, "hachura"},
    {ElementType::Line, "linha"},
    {ElementType::PolyLine, "polilinha"},
    {ElementType::Arc, "arco"},
    {ElementType::Circle, "circulo"},
    {ElementType::Spline, "spline"},
    {ElementType::Hotspot, "ponto"},
    {ElementType::CutPlane, "corte"},
    {ElementType::SectionElement, "elemento de corte"},
    {ElementType::Elevation, "elevacao"},
    {ElementType::InteriorElevation, "elevacao interior"},
    {ElementType::CurtainWall, "fachada cortina"},
    {ElementType::CurtainWallFrame, "montante"},
    {ElementType::CurtainWallPanel, "painel"},
    {ElementType::Shell, "casca"},
    {ElementType::Skylight, "claraboia"},
    {ElementType::Morph, "morph"},
    {ElementType::Stair, "escada"},
    {ElementType::Riser, "espelho"},
    {ElementType::Tread, "piso de degrau"},
    {ElementType::StairStructure, "estrutura de escada"},
    {ElementType::Railing, "guarda-corpo"},
    {ElementType::RailingPart, "peca de guarda-corpo"},
    {ElementType::BeamSegment, "segmento de viga"},
    {ElementType::ColumnSegment, "segmento de pilar"},
};

constexpr Word<WindowType> WindowTypes[] = {
    {WindowType::FloorPlan, "planta"},
    {WindowType::Section, "corte"},
    {WindowType::Model3D, "3d"},
    {WindowType::Elevation, "elevacao"},
    {WindowType::InteriorElevation, "elevacao interior"},
    {WindowType::Worksheet, "folha de trabalho"},
};

constexpr Word<FillKind> FillKinds[] = {
    {FillKind::Vector, "vetorial"},
    {FillKind::Symbol, "simbolo"},
    {FillKind::Solid, "solido"},
    {FillKind::Empty, "vazio"},
};

constexpr Word<TextAnchor> TextAnchors[] = {
    {TextAnchor::LeftTop, "esquerda superior"},
    {TextAnchor::MiddleTop, "meio superior"},
    {TextAnchor::RightTop, "direita superior"},
    {TextAnchor::LeftMiddle, "esquerda"},
    {TextAnchor::Middle, "meio"},
    {TextAnchor::RightMiddle, "direita"},
    {TextAnchor::LeftBottom, "esquerda inferior"},
    {TextAnchor::MiddleBottom, "meio inferior"},
    {TextAnchor::RightBottom, "direita inferior"},
};

constexpr Word<ParameterType> ParameterTypes[] = {
    {ParameterType::Integer, "inteiro"},
    {ParameterType::Length, "comprimento"},
    {ParameterType::Angle, "angulo"},
    {ParameterType::Real, "real"},
    {ParameterType::LightSwitch, "interruptor"},
    {ParameterType::Colour, "cor"},
    {ParameterType::Intensity, "intensidade"},
    {ParameterType::LineType, "tipo de linha"},
    {ParameterType::Surface, "superficie"},
    {ParameterType::FillPattern, "preenchimento"},
    {ParameterType::Pen, "caneta"},
    {ParameterType::String, "texto"},
    {ParameterType::Boolean, "booleano"},
    {ParameterType::Separator, "separador"},
    {ParameterType::Title, "titulo"},
};

constexpr Word<Shape> Shapes[] = {
    {Shape::None, "nenhuma"}, {Shape::Wall, "parede"},  {Shape::Opening, "abertura"},
    {Shape::Slab, "laje"},    {Shape::Prism, "prisma"}, {Shape::Bar, "barra"},
    {Shape::Roof, "agua"},    {Shape::Mesh, "terreno"}, {Shape::Body, "corpo"},
};

} // namespace

Words<ElementType> ElementTypeWords() {
    return ElementTypes;
}

Words<WindowType> WindowTypeWords() {
    return WindowTypes;
}

Words<FillKind> FillKindWords() {
    return FillKinds;
}

Words<TextAnchor> TextAnchorWords() {
    return TextAnchors;
}

Words<ParameterType> ParameterTypeWords() {
    return ParameterTypes;
}

Words<Shape> ShapeWords() {
    return Shapes;
}

} // namespace Merivane::Workbench
