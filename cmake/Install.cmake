# Installs the program, the libraries that it loads and the files that all users share. It finds all of them from its own place,
# so that an installation can be moved as a whole.
set(library_folder ${CMAKE_INSTALL_LIBDIR}/penwright)
set(shared_folder ${CMAKE_INSTALL_DATADIR}/penwright)

# The program lies beside its libraries, and a link where people look for it.
install(TARGETS penwright DESTINATION ${library_folder})
file(RELATIVE_PATH program_from_link ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR}/penwright/penwright)
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/packaging)
file(CREATE_LINK ${program_from_link} ${PROJECT_BINARY_DIR}/packaging/penwright SYMBOLIC)
install(FILES ${PROJECT_BINARY_DIR}/packaging/penwright DESTINATION ${CMAKE_INSTALL_BINDIR})
# Loaded by the program, not linked: they are read, not run.
install(TARGETS penwright_uno penwright_sound DESTINATION ${library_folder}
        PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

install(FILES ${help}/PWR.chm assets/alert.wav DESTINATION ${shared_folder})
install(FILES ${documents}/Report.xls ${documents}/template.xlt DESTINATION ${shared_folder}/templates)
install(FILES ${documents}/Radiology/chest-x-ray.doc DESTINATION ${shared_folder}/templates/Radiology)
install(FILES ${documents}/Letters/referral.doc assets/templates/Letters/memo.txt
        DESTINATION ${shared_folder}/templates/Letters)

set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES assets/icon/penwright.svg DESTINATION ${icons}/scalable/apps)
foreach(size 16 32 48 256)
  install(FILES assets/icon/penwright-${size}.png DESTINATION ${icons}/${size}x${size}/apps RENAME penwright.png)
endforeach()
install(FILES packaging/penwright.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
set(metainfo example.penwright.Penwright.metainfo.xml)
configure_file(packaging/${metainfo}.in ${PROJECT_BINARY_DIR}/packaging/${metainfo} @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/packaging/${metainfo} DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)

# Debian wants both compressed, without the time of the compression.
find_program(GZIP gzip REQUIRED)
set(compressed "")
foreach(text changelog penwright.1)
  configure_file(packaging/${text}.in ${PROJECT_BINARY_DIR}/packaging/${text} @ONLY)
  set(made ${PROJECT_BINARY_DIR}/packaging/${text}.gz)
  add_custom_command(OUTPUT ${made}
    COMMAND ${GZIP} -9nkf ${PROJECT_BINARY_DIR}/packaging/${text}
    DEPENDS ${PROJECT_BINARY_DIR}/packaging/${text}
    VERBATIM)
  list(APPEND compressed ${made})
endforeach()
add_custom_target(compress ALL DEPENDS ${compressed})
install(FILES ${PROJECT_BINARY_DIR}/packaging/penwright.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
# Not CMAKE_INSTALL_DOCDIR, which has the project's capital letter.
set(doc_folder ${CMAKE_INSTALL_DATAROOTDIR}/doc/penwright)
install(FILES ${PROJECT_BINARY_DIR}/packaging/changelog.gz packaging/copyright DESTINATION ${doc_folder})
install(FILES packaging/lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME penwright)
