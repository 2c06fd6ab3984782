#include "Workbench/Parts/XmlSource.hpp"

#include <algorithm>
#include <array>

#include "Host/GuidText.hpp"
#include "Text/Ascii.hpp"
#include "Text/Number.hpp"
#include "Text/ShownText.hpp"

namespace Merivane::Workbench::Parts {

namespace {

using pugi::xml_node;

constexpr std::size_t MostNotes = 50;

std::string AtOffset(std::string_view text, std::ptrdiff_t offset, const std::string& what) {
    auto end = static_cast<std::size_t>(std::max<std::ptrdiff_t>(offset, 0));
    while (end < text.size() && Text::IsWhiteSpace(text[end])) {
        ++end; // a text begins with what stands before its first word
    }
    end = std::min(end, text.size());
    const auto line =
        std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(end), '\n');
    return "linha " + std::to_string(line + 1) + ": " + what;
}

std::string Explanation(pugi::xml_parse_status status) {
    switch (status) {
    case pugi::status_end_element_mismatch:
        return "um elemento se fecha com outro nome, ou não se fecha";
    case pugi::status_bad_start_element:
    case pugi::status_unrecognized_tag:
        return "há um elemento malformado";
    case pugi::status_bad_end_element:
        return "há um fim de elemento malformado";
    case pugi::status_bad_attribute:
        return "há um atributo malformado";
    case pugi::status_bad_cdata:
        return "um trecho CDATA não se fecha";
    case pugi::status_bad_comment:
        return "um comentário não se fecha";
    case pugi::status_bad_pi:
        return "há uma instrução malformada";
    case pugi::status_bad_doctype:
        return "há uma declaração de tipo malformada";
    case pugi::status_bad_pcdata:
        return "há texto fora dos elementos";
    case pugi::status_no_document_element:
        return "não há nenhum elemento";
    default:
        return "não é um documento XML";
    }
}

/// Where the first character stands that no text can hold; the end where there is none.
std::size_t FirstBadCharacter(std::string_view text) {
    std::size_t begin = 0;
    while (begin < text.size()) {
        const std::size_t end = std::min(text.find_first_of("\t\r\n", begin), text.size());
        if (!Text::IsPlainText(text.substr(begin, end - begin))) {
            return begin;
        }
        begin = end + 1;
    }
    return text.size();
}

/// Behind the ">" of the tag that begins at `at`; quotation marks hide others.
std::size_t EndOfTag(std::string_view text, std::size_t at) {
    char quote = '\0';
    for (; at < text.size(); ++at) {
        const char c = text[at];
        if (quote != '\0') {
            quote = c == quote ? '\0' : quote;
        } else if (c == '"' || c == '\'') {
            quote = c;
        } else if (c == '>') {
            return at + 1;
        }
    }
    return text.size();
}

std::size_t Behind(std::string_view text, std::string_view end, std::size_t at) {
    const std::size_t found = text.find(end, at);
    return found == std::string_view::npos ? text.size() : found + end.size();
}

/// Behind the element that begins at `at`, in a text whose elements are known to fit.
std::size_t EndOfElement(std::string_view text, std::size_t at) {
    std::size_t depth = 0;
    while (at < text.size()) {
        at = std::min(text.find('<', at), text.size());
        const std::string_view rest = text.substr(at);
        if (rest.starts_with("<!--")) {
            at = Behind(text, "-->", at);
        } else if (rest.starts_with("<![CDATA[")) {
            at = Behind(text, "]]>", at);
        } else if (rest.starts_with("<?")) {
            at = Behind(text, "?>", at);
        } else {
            const bool closes = rest.starts_with("</");
            at = EndOfTag(text, at);
            const bool isEmpty = !closes && at >= 2 && text[at - 2] == '/';
            depth += closes || isEmpty ? 0 : 1;
            depth -= closes && depth > 0 ? 1 : 0;
            if (depth == 0) {
                break;
            }
        }
    }
    return at;
}

} // namespace

bool ParseXml(std::string_view text, std::string_view rootName, XmlSource& source) {
    source.text = text;
    if (const std::size_t bad = FirstBadCharacter(text); bad < text.size()) {
        source.error = AtOffset(text, static_cast<std::ptrdiff_t>(bad),
                                "há um caractere que não é de texto em UTF-8");
        return false;
    }
    constexpr unsigned options = pugi::parse_default | pugi::parse_comments |
                                 pugi::parse_declaration | pugi::parse_doctype | pugi::parse_pi;
    const pugi::xml_parse_result parsed =
        source.document.load_buffer(text.data(), text.size(), options, pugi::encoding_utf8);
    if (!parsed) {
        source.error = AtOffset(text, parsed.offset, Explanation(parsed.status));
        return false;
    }
    const xml_node root = source.document.document_element();
    for (xml_node other = root.next_sibling(); other; other = other.next_sibling()) {
        if (other.type() == pugi::node_element) {
            return RefuseNode(source, other, "há um segundo elemento depois do fim do documento");
        }
    }
    return root.name() == rootName ||
           RefuseNode(source, root,
                      "espera-se o elemento " + Text::QuotedText(rootName) + ", mas há " +
                          Text::QuotedText(root.name()));
}

bool RefuseNode(XmlSource& source, const xml_node& node, const std::string& what) {
    source.error = AtOffset(source.text, node.offset_debug(), what);
    return false;
}

void NoteNode(XmlSource& source, const xml_node& node, const std::string& what) {
    if (source.notes.size() < MostNotes) {
        source.notes.push_back(AtOffset(source.text, node.offset_debug(), what));
    }
}

void NoteUnknown(XmlSource& source, const xml_node& node) {
    if (node.type() == pugi::node_element) {
        NoteNode(source, node,
                 "o elemento " + Text::QuotedText(node.name()) +
                     " não é conhecido e foi deixado de fora");
    }
}

void NoteAttributes(XmlSource& source, const xml_node& node,
                    const std::vector<std::string_view>& known) {
    for (const pugi::xml_attribute& attribute : node.attributes()) {
        if (std::find(known.begin(), known.end(), attribute.name()) == known.end()) {
            NoteNode(source, node,
                     "o atributo " + Text::QuotedText(attribute.name()) +
                         " não é conhecido e foi deixado de fora");
        }
    }
}

std::string_view ElementText(const XmlSource& source, const xml_node& node) {
    const std::ptrdiff_t name = node.offset_debug();
    if (name < 1) {
        return {};
    }
    const auto begin = static_cast<std::size_t>(name) - 1;
    return source.text.substr(begin, EndOfElement(source.text, begin) - begin);
}

std::string InnerText(const xml_node& node) {
    std::string text;
    for (const xml_node& child : node.children()) {
        if (child.type() == pugi::node_cdata) {
            text += child.value();
        } else if (child.type() == pugi::node_pcdata) {
            text += Text::Trim(child.value());
        }
    }
    return text;
}

std::string InnerString(const xml_node& node) {
    std::string text = InnerText(node);
    if (text.size() < 2 || text.front() != text.back() ||
        (text.front() != '"' && text.front() != '\'')) {
        return text;
    }
    std::string inner;
    for (std::size_t i = 1; i + 1 < text.size(); ++i) {
        inner += text[i];
        // A doubled quotation mark stands for one.
        i += text[i] == text.front() && text[i + 1] == text[i] && i + 2 < text.size() ? 1 : 0;
    }
    return inner;
}

bool ReadSubIdent(XmlSource& source, const xml_node& node, std::int32_t& number) {
    constexpr double highest = 65535.0;
    const pugi::xml_attribute attribute = node.attribute("SubIdent");
    double read = 0.0;
    if (attribute &&
        (!Text::ReadEntireNumber(attribute.value(), read) || !(read >= 0.0) || read > highest ||
         read != static_cast<double>(static_cast<std::int32_t>(read)))) {
        return RefuseNode(source, node,
                          "o SubIdent " + Text::QuotedText(attribute.value()) +
                              " não é um número inteiro de 0 a 65535");
    }
    number = static_cast<std::int32_t>(read);
    return true;
}

bool ReadGuidElement(XmlSource& source, const xml_node& node, Host::Guid& guid) {
    const std::string text = InnerText(node);
    return Host::ParseGuid(text, guid) ||
           RefuseNode(source, node, Text::QuotedText(text) + " não é um GUID");
}

} // namespace Merivane::Workbench::Parts
