# The libraries' headers that most tests include, parsed once for each program instead of once for
# each source. The programs themselves are built without: GCC 12 warns of overlaps in the standard
# string's own code when that comes out of a precompiled header and is optimised.
set(standard_headers <algorithm> <array> <cmath> <cstddef> <cstdint> <filesystem> <functional>
  <limits> <map> <memory> <optional> <set> <string> <string_view> <utility> <vector>)
foreach(tests plain_tests solver_tests)
  target_precompile_headers(${tests} PRIVATE ${standard_headers} <gtest/gtest.h> <rapidcheck.h>
                                             <rapidcheck/gtest.h>)
endforeach()
target_precompile_headers(screen_tests PRIVATE ${standard_headers} <gtest/gtest.h> <QtWidgets>
                                               <QtTest>)
foreach(tests plain_tests screen_tests solver_tests)
  target_compile_options(${tests} PRIVATE -O0)
endforeach()
