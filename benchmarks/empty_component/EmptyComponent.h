// A component with the shape of the real one and nothing in it: a class factory, one automation member, two
// modal dialogs with as many controls. What an in-process server costs by itself. Header: its class and its
// controls, for who measures it.
#pragma once

#define IDD_EMPTY_MAIN 100
#define IDD_EMPTY_CONFIGURE 101

// The same numbers as in the component, so that both are used alike.
#define IDC_EMPTY_OPTION 2001
#define IDC_EMPTY_LIST 2002
#define IDC_EMPTY_FRAME 2003
#define IDC_EMPTY_STATE 2004
#define IDC_EMPTY_PROGRESS 2005
#define IDC_EMPTY_START 2006
#define IDC_EMPTY_CONFIGURE 2007
#define IDC_EMPTY_LABEL 2401
#define IDC_EMPTY_ROWS 2402
#define IDC_EMPTY_CHOOSE 2403
#define IDC_EMPTY_ADVANCE 2404

#ifndef RC_INVOKED

#include <windows.h>

inline constexpr CLSID kEmptyClass = {
    0x3d0b7c61, 0x52a4, 0x4d38, {0xb0, 0x77, 0x19, 0x6e, 0x2a, 0x90, 0x5c, 0x3f}};

#endif
