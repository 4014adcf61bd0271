# How every target of the project is made: one place for warnings, sanitizers and layers.

add_library(tessara_options INTERFACE)
target_include_directories(tessara_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(
    tessara_options
    INTERFACE -Wall -Wextra -Wpedantic $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local> -Wnon-virtual-dtor -Woverloaded-virtual -Werror
)
# gcc 12 sees uninitialized members in every std::optional that it inlines.
target_compile_options(
    tessara_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>
)
target_compile_definitions(
    tessara_options
    INTERFACE QT_NO_CAST_FROM_ASCII
              QT_NO_CAST_TO_ASCII
              QT_NO_FOREACH
              QT_NO_KEYWORDS
              TESSARA_VERSION="${PROJECT_VERSION}"
)
if(TESSARA_SANITIZERS)
    target_compile_options(
        tessara_options INTERFACE -fsanitize=${TESSARA_SANITIZERS} -fno-omit-frame-pointer
                                  -fno-sanitize-recover=undefined
    )
    target_link_options(tessara_options INTERFACE -fsanitize=${TESSARA_SANITIZERS})
endif()

# tessara_layer(<folder> SOURCES <files...> LINKS <targets...>)
# A folder of src/ as one library, linking only the layers to its left.
function(tessara_layer folder)
    cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
    add_library(tessara_${folder} STATIC ${arg_SOURCES})
    target_link_libraries(tessara_${folder} PUBLIC tessara_options ${arg_LINKS})
endfunction()
