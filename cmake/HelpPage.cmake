# Makes a help page of a text: cmake -DTEXT=<page.md> -DPAGE=<page.htm> -P HelpPage.cmake
# The texts are plain: a heading, paragraphs and points, a line each, with **strong** and *slight*
# words and [links](page).
file(READ ${TEXT} page)
string(REPLACE "&" "&amp;" page "${page}")
string(REPLACE "<" "&lt;" page "${page}")
string(REGEX REPLACE "\\[([^]\n]+)\\]\\(([^)\n]+)\\)" "<a href=\"\\2\">\\1</a>" page "${page}")
string(REGEX REPLACE "\\*\\*([^*\n]+)\\*\\*" "<b>\\1</b>" page "${page}")
string(REGEX REPLACE "\\*([^*\n]+)\\*" "<i>\\1</i>" page "${page}")
string(REGEX MATCH "^# ([^\n]+)\n" heading "${page}")
set(title "${CMAKE_MATCH_1}")
string(REGEX REPLACE "^# [^\n]+\n" "<h1>${title}</h1>\n" page "${page}")
string(REGEX REPLACE "\n- ([^\n]+)" "\n<li>\\1</li>" page "${page}")
string(REGEX REPLACE "(\n<li>[^\n]+)+" "\n<ul>\\0\n</ul>" page "${page}")
string(REGEX REPLACE "\n([^<\n][^\n]+)" "\n<p>\\1</p>" page "${page}")
get_filename_component(name ${PAGE} NAME)
string(REGEX MATCH "_(..)\\.htm$" ending ${name})
string(TOLOWER "${CMAKE_MATCH_1}" language)
file(WRITE ${PAGE} "<!DOCTYPE html>
<html lang=\"${language}\"><head><meta charset=\"utf-8\"><title>${title}</title>
<meta name=\"viewport\" content=\"width=device-width\"><meta name=\"color-scheme\" content=\"light dark\">
<style>body { font: 16px/1.5 sans-serif; max-width: 44em; margin: 2em auto; padding: 0 1em }
h1 { font-size: 1.5em } li { margin: .5em 0 }</style></head><body>
${page}</body></html>
")
