// Included first when clang checks the sources as for MSVC, over mingw-w64's headers: these name an
// interface's identifier for GCC alone, and the dialect of MSVC takes it from the declaration.
#pragma once

#include <windows.h>

#include <dispex.h>
#include <oaidl.h>
#include <objidl.h>
#include <ocidl.h>

struct __declspec(uuid("00000000-0000-0000-C000-000000000046")) IUnknown;
struct __declspec(uuid("00000001-0000-0000-C000-000000000046")) IClassFactory;
struct __declspec(uuid("00000016-0000-0000-C000-000000000046")) IMessageFilter;
struct __declspec(uuid("0000013D-0000-0000-C000-000000000046")) IClientSecurity;
struct __declspec(uuid("00020400-0000-0000-C000-000000000046")) IDispatch;
struct __declspec(uuid("1CF2B120-547D-101B-8E65-08002B2BD119")) IErrorInfo;
struct __declspec(uuid("A6EF9860-C720-11D0-9337-00A0C90DCAA9")) IDispatchEx;
struct __declspec(uuid("BEF6E002-A874-101A-8BBA-00AA00300CAB")) IFont;
struct __declspec(uuid("BEF6E003-A874-101A-8BBA-00AA00300CAB")) IFontDisp;
struct __declspec(uuid("DF0B3D60-548F-101B-8E65-08002B2BD119")) ISupportErrorInfo;

#undef MIDL_INTERFACE
#define MIDL_INTERFACE(id) struct __declspec(uuid(id)) __declspec(novtable)
