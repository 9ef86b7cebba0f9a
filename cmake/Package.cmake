# The Debian package: scripts/package makes and checks it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME penwright)
set(CPACK_PACKAGE_CONTACT "Penwright maintainers <maintainers@penwright.example>")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "clients, rates, jobs and templates for people who type")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Penwright is for people who type documents for a living and are paid per
line, per report or by the hour. It keeps clients, rates and jobs, times each
job while it is typed, turns its characters into lines and money, fetches
document templates by a short key code, writes reports as workbooks, and
copies everything to another folder as a backup.

Without the recommended office suite it opens no templates and writes no
reports; without the help viewer it shows no help; without Qt Multimedia an
unknown key code makes no sound.")
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})

# What the package depends on is known when it is made.
configure_file(cmake/PackageDependencies.cmake.in ${PROJECT_BINARY_DIR}/packaging/PackageDependencies.cmake @ONLY)
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_BINARY_DIR}/packaging/PackageDependencies.cmake)
include(CPack)
