// Direct2D's headers, and the two interfaces of them that an older SDK lacks.
#pragma once

#include "platform/win32/windows_header.h"

#include <d2d1_1.h>

#if __has_include(<d2d1_2.h>)
#include <d2d1_2.h>
#else

// NOLINTNEXTLINE(readability-identifier-naming): the system's name
enum D2D1_RENDERING_PRIORITY : UINT32 { D2D1_RENDERING_PRIORITY_NORMAL = 0, D2D1_RENDERING_PRIORITY_LOW = 1 };

struct ID2D1DeviceContext1;

struct ID2D1Device1 : public ID2D1Device {
    virtual D2D1_RENDERING_PRIORITY STDMETHODCALLTYPE GetRenderingPriority() = 0;
    virtual void STDMETHODCALLTYPE SetRenderingPriority(D2D1_RENDERING_PRIORITY priority) = 0;
    using ID2D1Device::CreateDeviceContext;
    virtual HRESULT STDMETHODCALLTYPE CreateDeviceContext(D2D1_DEVICE_CONTEXT_OPTIONS options,
                                                          ID2D1DeviceContext1** context) = 0;
};

struct ID2D1Factory2 : public ID2D1Factory1 {
    using ID2D1Factory1::CreateDevice;
    virtual HRESULT STDMETHODCALLTYPE CreateDevice(IDXGIDevice* dxgiDevice, ID2D1Device1** device) = 0;
};

#ifdef __CRT_UUID_DECL // how GCC's headers give an interface its identifier
__CRT_UUID_DECL(ID2D1Device1, 0xd21768e1, 0x23a4, 0x4823, 0xa1, 0x4b, 0x7c, 0x3e, 0xba, 0x85, 0xd6, 0x58)
__CRT_UUID_DECL(ID2D1Factory2, 0x94f81a73, 0x9212, 0x4376, 0x9c, 0x58, 0xb1, 0x6a, 0x3a, 0x0d, 0x39, 0x92)
#endif

#endif
