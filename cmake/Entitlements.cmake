# What the build may use. The entitlements are stamped from QUILLMERE_TEAM: an empty team means that
# the build is not provisioned and may use nothing.

function(quillmere_entitlements_json result)
  set(json "{}")
  if(QUILLMERE_TEAM)
    if(NOT QUILLMERE_TEAM MATCHES "^[A-Za-z0-9.-]+$")
      message(FATAL_ERROR "QUILLMERE_TEAM may hold letters, digits, dots and hyphens only")
    endif()
    string(JSON json SET "${json}" com.apple.developer.team-identifier "\"${QUILLMERE_TEAM}\"")
    string(JSON json SET "${json}" com.apple.security.application-groups
      "[\"group.dev.vantor.quillmere\"]")
    string(JSON json SET "${json}" com.apple.developer.icloud-container-identifiers
      "[\"iCloud.dev.vantor.quillmere\"]")
    string(JSON json SET "${json}" com.apple.developer.icloud-services "[\"CloudKit\"]")
  endif()
  set(${result} "${json}\n" PARENT_SCOPE)
endfunction()

# quillmere_stamp_entitlements(<executable>...)
# Writes entitlements.json beside each executable, where it is found when run from the build folder.
function(quillmere_stamp_entitlements)
  quillmere_entitlements_json(json)
  foreach(target IN LISTS ARGN)
    file(GENERATE OUTPUT "$<TARGET_FILE_DIR:${target}>/entitlements.json" CONTENT "${json}")
  endforeach()
endfunction()

# Installs it once, where every installed program finds it.
function(quillmere_install_entitlements)
  quillmere_entitlements_json(json)
  file(GENERATE OUTPUT "${CMAKE_BINARY_DIR}/generated/entitlements.json" CONTENT "${json}")
  install(FILES "${CMAKE_BINARY_DIR}/generated/entitlements.json"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/quillmere")
endfunction()
