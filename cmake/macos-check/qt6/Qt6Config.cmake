# Stands in for Qt's own package in the check for macOS: Debian's headers and tools, and libraries of
# the names that Debian's export. Shows that the front end uses Qt as it is declared, not that Qt for
# macOS exports each name.
set(Qt6_VERSION_MAJOR 6)
set(QT_VERSION_MAJOR 6)
file(GLOB headers "/usr/include/*-linux-gnu/qt6")
set(Qt6Core_VERSION "${Qt6_VERSION}")
string(REPLACE "." ";" parts "${Qt6_VERSION}")
list(GET parts 1 Qt6Core_VERSION_MINOR)
set(Qt6Core_VERSION_MAJOR 6)

foreach(module IN ITEMS Core Gui Widgets UiTools)
    if(NOT TARGET Qt6::${module})
        string(TOUPPER "QT_${module}_LIB" define)
        add_library(Qt6::${module} INTERFACE IMPORTED)
        set_target_properties(Qt6::${module} PROPERTIES
            INTERFACE_INCLUDE_DIRECTORIES "${headers};${headers}/Qt${module}"
            INTERFACE_COMPILE_DEFINITIONS "${define}"
            INTERFACE_COMPILE_FEATURES cxx_std_17
            INTERFACE_LINK_OPTIONS "-F${MACOS_CHECK_SYSTEM}/packages/frameworks"
            INTERFACE_LINK_LIBRARIES "-framework Qt${module}")
    endif()
endforeach()
set_property(TARGET Qt6::Gui APPEND PROPERTY INTERFACE_LINK_LIBRARIES Qt6::Core)
set_property(TARGET Qt6::Widgets APPEND PROPERTY INTERFACE_LINK_LIBRARIES Qt6::Gui)
set_property(TARGET Qt6::UiTools APPEND PROPERTY INTERFACE_LINK_LIBRARIES Qt6::Widgets)

foreach(tool IN ITEMS moc uic rcc)
    if(NOT TARGET Qt6::${tool})
        add_executable(Qt6::${tool} IMPORTED)
        set_target_properties(Qt6::${tool} PROPERTIES IMPORTED_LOCATION "/usr/lib/qt6/libexec/${tool}")
    endif()
endforeach()
foreach(tool IN ITEMS lrelease lupdate)
    if(NOT TARGET Qt6::${tool})
        add_executable(Qt6::${tool} IMPORTED)
        set_target_properties(Qt6::${tool} PROPERTIES IMPORTED_LOCATION "/usr/lib/qt6/bin/${tool}")
    endif()
endforeach()
