# Installation of the library for hosts built elsewhere: the shared libraries, their headers in
# one folder (include/plib), the data files and a package configuration, so that a host finds
# everything with find_package(plib) and links plib::vkd_p_fea.
include(CMakePackageConfigHelpers)

set(PLIB_INCLUDE_INSTALL_DIR ${CMAKE_INSTALL_INCLUDEDIR}/plib)
set(PLIB_CMAKE_INSTALL_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/plib)

# An installed program or library finds the libraries beside it or in lib/ one level up, so the
# installed tree may be moved as a whole.
set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

# plib_install_library(<target> <header folder>...): installs the library into the export set
# and the headers of the folders. A folder named in the build tree is usable from the build only;
# the installed target points at the one include folder instead.
function(plib_install_library target)
  get_target_property(dirs ${target} INTERFACE_INCLUDE_DIRECTORIES)
  set(wrapped)
  foreach(dir ${dirs})
    list(APPEND wrapped "$<BUILD_INTERFACE:${dir}>")
  endforeach()
  set_target_properties(${target} PROPERTIES INTERFACE_INCLUDE_DIRECTORIES "${wrapped}")
  # The same name as the installed target, for a host that builds plib as part of its own tree.
  add_library(plib::${target} ALIAS ${target})
  install(TARGETS ${target} EXPORT plibTargets INCLUDES DESTINATION ${PLIB_INCLUDE_INSTALL_DIR})
  foreach(folder ${ARGN})
    file(GLOB headers ${folder}/*.h)
    install(FILES ${headers} DESTINATION ${PLIB_INCLUDE_INSTALL_DIR})
  endforeach()
endfunction()
