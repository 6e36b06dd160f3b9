# Writes OUTPUT, a source file that holds the project's SQL files as texts.
function(embed variable file)
  file(READ ${SOURCE}/${file} text)
  set(parts "")
  # A string literal may not be too long for a compiler; the pieces are joined again by it.
  string(LENGTH "${text}" length)
  set(at 0)
  while(at LESS length)
    string(SUBSTRING "${text}" ${at} 8000 piece)
    string(APPEND parts "    R\"sql(${piece})sql\"\n")
    math(EXPR at "${at} + 8000")
  endwhile()
  file(APPEND ${OUTPUT} "const std::string_view ${variable} =\n${parts};\n")
endfunction()

file(WRITE ${OUTPUT} "#include \"store/db/embedded_sql.h\"\n\nnamespace ordex {\n")
embed(kEmbeddedTables sql/embedded.sql)
embed(kSampleOffice samples/office.sql)
file(APPEND ${OUTPUT} "}  // namespace ordex\n")
