# SPDX-License-Identifier: MIT
# Warnings, sanitizers and the faster tools. Nothing here names a source file.

add_library(velmor_warnings INTERFACE)
target_compile_options(velmor_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                                                 $<$<BOOL:${VELMOR_WERROR}>:-Werror>)
# GCC 12 cries wolf over std::optional and std::string once it optimises; the sanitizers watch over both.
target_compile_options(velmor_warnings INTERFACE
                       $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized;-Wno-restrict>)

# A product and a sum fused into one rounding would give other last digits on processors that can do it.
add_compile_options(-ffp-contract=off)

if(VELMOR_SANITIZE)
    add_compile_options(-fsanitize=${VELMOR_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${VELMOR_SANITIZE})
endif()

# The tables of the windows are full of pointers: said one by one, what the loader must know of them takes 400 KB of every
# running program. A packed list needs a linker and a C library that know it; one program tried says whether both do.
if(VELMOR_SMALL)
    add_compile_options(-ffunction-sections -fdata-sections)
    add_link_options(-Wl,--gc-sections)
    include(CheckCXXSourceRuns)
    set(CMAKE_REQUIRED_LINK_OPTIONS -fuse-ld=bfd -Wl,-z,pack-relative-relocs)
    check_cxx_source_runs("const char* texts[] = {\"a\", \"b\"}; int main(int count, char**) { return *texts[count - 1] != 'a'; }"
                          VELMOR_PACKED_RELOCATIONS)
    unset(CMAKE_REQUIRED_LINK_OPTIONS)
endif()

if(VELMOR_FAST_TOOLS)
    find_program(VELMOR_CCACHE ccache)
    if(VELMOR_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
        # Paths relative to the checkout, so that every checkout shares what another has compiled.
        set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
                                        ${VELMOR_CCACHE})
    endif()
    find_program(VELMOR_LLD ld.lld)
    find_program(VELMOR_GOLD ld.gold)
    if(VELMOR_PACKED_RELOCATIONS)
        # the other linkers do not know the list, or not yet
    elseif(VELMOR_LLD)
        add_link_options(-fuse-ld=lld)
    elseif(VELMOR_GOLD)
        add_link_options(-fuse-ld=gold)
    endif()
endif()
if(VELMOR_PACKED_RELOCATIONS)
    add_link_options(-fuse-ld=bfd -Wl,-z,pack-relative-relocs)
endif()
