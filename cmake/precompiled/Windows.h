// Headers of Windows and of the standard library that most sources include. They are compiled once per build.
// A source still includes everything it uses: ./test --tidy compiles each one without this file.
#pragma once

#include <windows.h>

#include <commctrl.h>
#include <oaidl.h>
#include <objbase.h>
#include <ocidl.h>
#include <oleauto.h>
#include <olectl.h>
#include <wrl/client.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cmath>
#include <cwchar>
#include <exception>
#include <functional>
#include <iterator>
#include <limits>
#include <map>
#include <memory>
#include <new>
#include <optional>
#include <set>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>
