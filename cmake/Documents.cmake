# The office suite makes the workbooks and sample templates from flat XML, which a person can diff.
set(documents ${PROJECT_BINARY_DIR}/documents)

# make_document(SOURCE FOLDER FORMAT FILTER): FOLDER/name.FORMAT from assets/SOURCE.
function(make_document source folder format filter)
  get_filename_component(name ${source} NAME_WE)
  set(made ${documents}/${folder}${name}.${format})
  add_custom_command(OUTPUT ${made}
    COMMAND ${SOFFICE} -env:UserInstallation=file://${documents}/profile --headless --norestore
            --convert-to "${format}:${filter}" --outdir ${documents}/${folder} ${PROJECT_SOURCE_DIR}/assets/${source}
            > ${documents}/${name}.log
    DEPENDS ${PROJECT_SOURCE_DIR}/assets/${source}
    COMMENT "Making ${name}.${format}"
    JOB_POOL office
    VERBATIM)
  set_property(GLOBAL APPEND PROPERTY documents_made ${made})
endfunction()

# One at a time: they share the suite's profile.
set_property(GLOBAL PROPERTY JOB_POOLS office=1)
make_document(Report.fods "" xls "MS Excel 97")
make_document(template.fods "" xlt "MS Excel 97 Vorlage/Template")
make_document(templates/Radiology/chest-x-ray.fodt Radiology/ doc "MS Word 97")
make_document(templates/Letters/referral.fodt Letters/ doc "MS Word 97")
get_property(documents_made GLOBAL PROPERTY documents_made)
