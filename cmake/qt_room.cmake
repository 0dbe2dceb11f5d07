# A room that shows things: like brevant_room, with Qt's widgets, its moc and its strict string rules.
find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)

function(brevant_qt_room name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
  add_library(brevant_${name} STATIC ${ARG_SOURCES})
  set_target_properties(brevant_${name} PROPERTIES AUTOMOC ON)
  target_include_directories(brevant_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_compile_definitions(brevant_${name} PRIVATE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
    QT_NO_FOREACH QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER)
  # Most of what a file here takes to compile is the toolkit's headers.
  target_precompile_headers(brevant_${name} PRIVATE <QtWidgets>)
  target_link_libraries(brevant_${name} PUBLIC ${ARG_USES} Qt6::Widgets PRIVATE brevant_warnings)
endfunction()
