/* Stands in for LumoraDLL.dll and for what its hosts need of user32.dll where neither runs: it writes down
 * what a binding calls and with what bytes, and posts the quit message that the end of an overlay window
 * posts. */
#include "lumora/lumora.h"

#include <inttypes.h>
#include <stdarg.h>
#include <stdio.h>
#include <string.h>

enum { QuitNumber = 0x12, PlainNumber = 0x401, LogSize = 4096, NoMessage = 0 };

typedef struct Message {
    void* window;
    uint32_t number;
    uint64_t wParam;
    int64_t lParam;
    uint32_t time;
    int32_t x;
    int32_t y;
} Message;

static char g_callLog[LogSize];
static char g_takenLog[LogSize];
static LM_Params g_current;
static uint64_t g_penDataSize = sizeof(LM_PenData);
static uintptr_t g_window = 0;
static uintptr_t g_lastWindow = 0x1000;
static uint32_t g_waiting = NoMessage;
static int g_quitWaits = 0;
static int32_t g_exitCode = 0;
static int g_creationFails = 0;

static void Log(const char* format, ...)
{
    const size_t used = strlen(g_callLog);
    va_list arguments;
    va_start(arguments, format);
    vsnprintf(g_callLog + used, LogSize - used, format, arguments);
    va_end(arguments);
}

static void LogBytes(const char* name, const void* bytes, size_t count)
{
    Log("%s", name);
    for (size_t i = 0; i < count; ++i) {
        Log(" %02x", ((const unsigned char*)bytes)[i]);
    }
    Log("\n");
}

static void Quit(int32_t code)
{
    g_quitWaits = 1;
    g_exitCode = code;
}

static void EndWindow(void)
{
    if (g_window != 0) {
        g_window = 0;
        Quit(0);
    }
}

/* For the tests. */
const char* StandInTakeLog(void);
int32_t StandInQuitWaits(void);
void StandInQuit(int32_t code);
void StandInPost(void);
void StandInFailCreation(int32_t fails);
void StandInSetPenDataSize(uint64_t size);

const char* StandInTakeLog(void)
{
    memcpy(g_takenLog, g_callLog, LogSize);
    g_callLog[0] = '\0';
    return g_takenLog;
}

int32_t StandInQuitWaits(void) { return g_quitWaits ? g_exitCode : -1; }
void StandInQuit(int32_t code) { Quit(code); }
void StandInPost(void) { g_waiting = PlainNumber; }
void StandInFailCreation(int32_t fails) { g_creationFails = fails; }
void StandInSetPenDataSize(uint64_t size) { g_penDataSize = size; }

/* The library. */
LM_WindowHandle LM_Create(void)
{
    Log("LM_Create\n");
    EndWindow();
    g_window = g_creationFails ? 0 : ++g_lastWindow;
    return (LM_WindowHandle)g_window;
}

void LM_Destroy(void)
{
    Log("LM_Destroy\n");
    EndWindow();
}

void LM_GetCopiedParams(LM_Params* params)
{
    Log("LM_GetCopiedParams\n");
    *params = g_current;
}

void LM_GetElmSize(uint64_t* paramsSize, uint64_t* size)
{
    *paramsSize = sizeof(LM_Params);
    *size = g_penDataSize;
}

LM_WindowHandle LM_GetWindowHandle(void) { return (LM_WindowHandle)g_window; }

void LM_InputPenDataArray(const LM_PenData* samples, uint64_t count)
{
    Log("LM_InputPenDataArray %" PRIu64 " of %s", count, samples == NULL ? "null" : "an array");
    for (uint64_t i = 0; i < count; ++i) {
        Log(", %s (%" PRId32 ", %" PRId32 ") %" PRId32, samples[i].time == 0 ? "untimed" : "at", samples[i].x,
            samples[i].y, samples[i].pressure);
    }
    Log("\n");
}

/* As the library does, it zeroes what it has read. */
void LM_SetData_from_App(void* message, uint64_t size)
{
    LogBytes("LM_SetData_from_App", message, size);
    memset(message, 0, size);
}

void LM_SetDebugLevel(uint32_t level) { Log("LM_SetDebugLevel %" PRIu32 "\n", level); }

void LM_SetParams(const LM_Params* params)
{
    LogBytes("LM_SetParams", params, sizeof(*params));
    g_current = *params;
}

/* Windows. */
int PeekMessageW(Message* message, void* ofWindow, uint32_t first, uint32_t last, uint32_t how);
void PostQuitMessage(int32_t code);
int TranslateMessage(const Message* message);
int64_t DispatchMessageW(const Message* message);
int IsDialogMessageW(void* dialog, const Message* message);
void* GetAncestor(void* ofWindow, uint32_t which);
void* GetWindow(void* ofWindow, uint32_t which);
int64_t SendMessageW(void* toWindow, uint32_t number, uint64_t wParam, int64_t lParam);

int PeekMessageW(Message* message, void* ofWindow, uint32_t first, uint32_t last, uint32_t how)
{
    (void)ofWindow, (void)how;
    memset(message, 0, sizeof(*message));
    if (g_waiting != NoMessage && first == 0 && last == 0) {
        message->window = (void*)g_window;
        message->number = g_waiting;
        g_waiting = NoMessage;
        return 1;
    }
    if (g_quitWaits) {
        message->number = QuitNumber;
        message->wParam = (uint64_t)g_exitCode;
        g_quitWaits = 0;
        return 1;
    }
    return 0;
}

void PostQuitMessage(int32_t code) { Quit(code); }
int TranslateMessage(const Message* message) { return message == NULL; }

int64_t DispatchMessageW(const Message* message)
{
    Log("DispatchMessageW 0x%" PRIx32 "\n", message->number);
    return 0;
}

int IsDialogMessageW(void* dialog, const Message* message) { return dialog == NULL && message == NULL; }
void* GetAncestor(void* ofWindow, uint32_t which) { return which == 2 ? ofWindow : NULL; }
void* GetWindow(void* ofWindow, uint32_t which) { return ofWindow == NULL || which == 4 ? NULL : ofWindow; }

int64_t SendMessageW(void* toWindow, uint32_t number, uint64_t wParam, int64_t lParam)
{
    Log("SendMessageW to %s 0x%" PRIx32 " %" PRIu64 " %" PRId64 "\n",
        toWindow == (void*)g_window ? "the overlay" : "another", number, wParam, lParam);
    return 0;
}
