# cmake -DOUTPUT=<source> -DFILES=<files separated by |> -P Embed.cmake
# writes a source that holds every file as an array, and the function that finds it by its name.

string(REPLACE "|" ";" FILES "${FILES}")
set(arrays)
set(cases)
foreach(file ${FILES})
  get_filename_component(name "${file}" NAME_WE)
  file(READ "${file}" bytes HEX)
  string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
  string(APPEND arrays "const unsigned char ${name}[] = {${bytes}};\n")
  string(APPEND cases "    case Picture::${name}: return std::as_bytes(std::span(::${name}));\n")
endforeach()

# No default: a picture without a file, or a file without a picture, does not compile.
file(WRITE "${OUTPUT}" "#include \"artwork/pictures.h\"

namespace {
${arrays}}  // namespace

namespace dorvalin {
std::span<const std::byte> PictureBytes(Picture which) {
  switch (which) {
${cases}  }
  return {};
}
}  // namespace dorvalin
")
