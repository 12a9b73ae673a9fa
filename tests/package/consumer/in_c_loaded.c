/* A stroke that goes after five seconds, by a host in C99 that loads the library when it runs. */
#include <lumora/lumora.h>
#include <windows.h>

#define FIND(name) (*(FARPROC*)& name = GetProcAddress(library, "LM_" #name)) != NULL

int main(void)
{
    LM_PenData stroke[] = {{.time = 1, .x = 200, .y = 300, .pressure = 9000},
                           {.time = 1, .x = 500, .y = 350, .pressure = 32767},
                           {.time = 1, .x = 500, .y = 350, .pressure = 0}};
    LM_WindowHandle (*Create)(void);
    void (*Destroy)(void);
    void (*GetCopiedParams)(LM_Params*);
    void (*SetParams)(const LM_Params*);
    void (*InputPenDataArray)(const LM_PenData*, uint64_t);
    LM_Params params;
    MSG message;
    const HMODULE library = LoadLibraryW(L"LumoraDLL.dll");

    if (library == NULL || !(FIND(Create) && FIND(Destroy) && FIND(GetCopiedParams) && FIND(SetParams) &&
                             FIND(InputPenDataArray))) {
        return 1;
    }
    SendMessageW(Create(), WM_COMMAND, 40022, 0);
    InputPenDataArray(stroke, 0);
    GetCopiedParams(&params);
    params.inkDecayTime = 5000;
    params.inkColor = 0x001E14C8;
    SetParams(&params);
    InputPenDataArray(stroke, 3);
    SetTimer(NULL, 0, 6000, NULL);
    while (GetMessageW(&message, NULL, 0, 0) > 0 && !(message.message == WM_TIMER && message.hwnd == NULL)) {
        DispatchMessageW(&message);
    }
    Destroy();
    return 0;
}
