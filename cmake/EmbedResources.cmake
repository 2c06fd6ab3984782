# Writes `output`, a source that holds the bytes of every .grc and .svg file below `folder`. As
# numbers, not as a string literal: compilers limit the length of those.
file(GLOB_RECURSE files RELATIVE "${folder}" "${folder}/*.grc" "${folder}/*.svg")
list(SORT files)

set(arrays "")
set(rows "")
set(index 0)
foreach(path IN LISTS files)
    file(READ "${folder}/${path}" hex HEX)
    string(REGEX REPLACE "([0-9a-f][0-9a-f])" "'\\\\x\\1'," bytes "${hex}")
    string(APPEND arrays "constexpr char File${index}[] = {${bytes}'\\0'};\n")
    string(APPEND rows "        {\"${path}\", {File${index}, sizeof File${index} - 1}},\n")
    math(EXPR index "${index} + 1")
endforeach()

file(WRITE "${output}" "#include \"Workbench/Interface/OwnResources.hpp\"

namespace Merivane::Workbench {

namespace {

${arrays}
} // namespace

const std::vector<EmbeddedFile>& EmbeddedFiles() {
    static const std::vector<EmbeddedFile> Files = {
${rows}    };
    return Files;
}

} // namespace Merivane::Workbench
")
