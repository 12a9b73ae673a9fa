// Which of the system's objects are watched, and which of their methods.
#pragma once

#include "platform/win32/windows_header.h"
#include "render/d2d_headers.h"

#include <d3d11.h>
#include <dwrite.h>
#include <dxgi1_2.h>

namespace zq::LM::test {

// From now on the object's calls are recorded. Each gives the kind that the object is called by.
const char* Watch(ID3D11Device* object);
const char* Watch(ID3D11DeviceContext* object);
const char* Watch(IDXGIDevice* object);
const char* Watch(IDXGIFactory2* object);
const char* Watch(ID2D1Factory* object);
const char* Watch(ID2D1Factory2* object);
const char* Watch(ID2D1Device* object);
const char* Watch(ID2D1DeviceContext* object);
const char* Watch(ID2D1DCRenderTarget* object);
const char* Watch(ID2D1Bitmap1* object);
const char* Watch(ID2D1SolidColorBrush* object);
const char* Watch(ID2D1StrokeStyle* object);
const char* Watch(ID2D1PathGeometry* object);
const char* Watch(ID2D1GeometrySink* object);
const char* Watch(IDWriteFactory* object);
const char* Watch(IDWriteTextFormat* object);

// By the interface that was asked for; an interface that is not watched is only named.
const char* WatchAs(const GUID& id, void* object);

} // namespace zq::LM::test
