#pragma once

#include <span>
#include <string_view>

#include "Host/Attributes.hpp"
#include "Host/Elements.hpp"
#include "Host/LibraryParameter.hpp"
#include "Host/Stories.hpp"

/// The words that the project file has for the port's numbers.
namespace Merivane::Workbench {

template <typename Enum> struct Word {
    Enum value{};
    std::string_view word;
};

template <typename Enum> using Words = std::span<const Word<Enum>>;

/// Shapes of `ModelGeometry`, in the order of its alternatives.
enum class Shape { None, Wall, Opening, Slab, Prism, Bar, Roof, Mesh, Body };

Words<Host::ElementType> ElementTypeWords();
Words<Host::WindowType> WindowTypeWords();
Words<Host::FillKind> FillKindWords();
Words<Host::TextAnchor> TextAnchorWords();
Words<Host::ParameterType> ParameterTypeWords();
Words<Shape> ShapeWords();

/// The word of a value; empty for a value without one.
template <typename Enum> std::string_view WordOf(Words<Enum> words, Enum value) {
    for (const Word<Enum>& entry : words) {
        if (entry.value == value) {
            return entry.word;
        }
    }
    return {};
}

/// Finds the value of a word; false when there is no such word.
template <typename Enum> bool FindWord(Words<Enum> words, std::string_view word, Enum& value) {
    for (const Word<Enum>& entry : words) {
        if (entry.word == word) {
            value = entry.value;
            return true;
        }
    }
    return false;
}

} // namespace Merivane::Workbench
