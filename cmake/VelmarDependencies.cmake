# Finds all external dependencies. scripts/dependencies.txt lists their packages.

find_package(Threads REQUIRED)
find_package(PkgConfig REQUIRED)
find_package(ICU REQUIRED COMPONENTS uc i18n)
find_package(fmt REQUIRED)
find_package(CLI11 REQUIRED)
find_package(tl-expected REQUIRED)
find_package(nlohmann_json REQUIRED)
find_package(pugixml REQUIRED)
find_package(Boost 1.81 REQUIRED)
find_package(simdjson REQUIRED)
pkg_check_modules(libsystemd REQUIRED IMPORTED_TARGET libsystemd)

# Asio consists of headers without a package file. It detects aligned allocation only if a standard header precedes
# its own, so two sources could disagree about it; the definition prevents that. Its fences around handlers are
# disabled: the thread sanitizer does not support them, and the locks of Asio's queues already order the handlers.
find_path(ASIO_INCLUDE_DIR asio.hpp REQUIRED)
add_library(asio_headers INTERFACE)
target_include_directories(asio_headers SYSTEM INTERFACE ${ASIO_INCLUDE_DIR})
target_compile_definitions(asio_headers INTERFACE ASIO_STANDALONE ASIO_NO_DEPRECATED
                           ASIO_HAS_STD_ALIGNED_ALLOC=1 ASIO_DISABLE_FENCED_BLOCK)
target_link_libraries(asio_headers INTERFACE Threads::Threads)

if(BUILD_TESTING)
    find_package(GTest REQUIRED)
endif()
if(VELMAR_BENCHMARKS)
    find_package(benchmark REQUIRED)
    pkg_check_modules(lua REQUIRED IMPORTED_TARGET lua5.4)
endif()
if(VELMAR_WITH_QT)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Core DBus Gui LinguistTools Multimedia Widgets)
    pkg_check_modules(fontconfig REQUIRED IMPORTED_TARGET fontconfig)
    pkg_check_modules(xcb REQUIRED IMPORTED_TARGET xcb)
endif()
