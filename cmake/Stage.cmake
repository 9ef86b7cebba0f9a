# The program folder: everything that can be copied to a stick and run from there. Files of the user in it are kept.
include(cmake/Documents.cmake)
include(cmake/Help.cmake)
set(app ${PROJECT_BINARY_DIR}/app)
set_target_properties(penwright PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${app})

add_custom_target(stage ALL
  COMMAND ${CMAKE_COMMAND} -E make_directory ${app}/templates/Radiology ${app}/templates/Letters ${app}/reports
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${documents}/Report.xls ${documents}/template.xlt ${app}/templates
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${documents}/Radiology/chest-x-ray.doc ${app}/templates/Radiology
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${documents}/Letters/referral.doc
          ${PROJECT_SOURCE_DIR}/assets/templates/Letters/memo.txt ${app}/templates/Letters
  COMMAND ${CMAKE_COMMAND} -E copy_if_different
          ${PROJECT_SOURCE_DIR}/assets/alert.wav
          ${PROJECT_SOURCE_DIR}/assets/icon/penwright.svg
          ${PROJECT_SOURCE_DIR}/assets/icon/penwright-16.png
          ${PROJECT_SOURCE_DIR}/assets/icon/penwright-32.png
          ${PROJECT_SOURCE_DIR}/assets/icon/penwright-48.png
          ${PROJECT_SOURCE_DIR}/assets/icon/penwright-256.png
          ${app}
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${help}/PWR.chm ${app}
  COMMAND makeDataFiles ${app}
  DEPENDS penwright ${documents_made} ${help}/PWR.chm
  VERBATIM)
