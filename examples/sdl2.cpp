// An SDL 2 program with a skinned button: the library paints into the memory of the window's
// surface. Usage: sdl2 SKIN ITEM [CAPTION [--screenshot FILE.bmp]]

#include <SDL.h>

#include <cstdio>
#include <cstring>

#include "vxgui/vxgui.h"

using namespace vxgui;

namespace {

constexpr int kWidth = 160, kHeight = 74, kMargin = 20;
constexpr uint32_t kGround = 0xFFE8ECF1;

/// A button that fills its window but for a margin.
struct Button {
    Ref<ThemeItem> item;
    String caption;
    bool over = false;
    bool down = false;

    int32_t State() const {
        return down ? E_ItemStatePressed : over ? E_ItemStateMouseOver : E_ItemStateNormal;
    }
};

bool IsOver(const SDL_Surface& surface, int x, int y) {
    return x >= kMargin && y >= kMargin && x < surface.w - kMargin && y < surface.h - kMargin;
}

// The surface's memory is the item's canvas: 32 bits a pixel, blue lowest.
bool Paint(SDL_Surface* surface, const Button& button) {
    if (surface->format->BytesPerPixel != 4 || surface->format->Bmask != 0xFF) return false;
    SDL_FillRect(surface, nullptr, kGround);
    SDL_LockSurface(surface);
    const gdi::HDC dc =
        gdi::CreateHostDC({surface->pixels, surface->w, surface->h, surface->pitch, false});
    int32_t right = surface->w - kMargin, bottom = surface->h - kMargin;
    button.item->State(button.State());
    button.item->DrawBackground(dc, kMargin, kMargin, right - kMargin, bottom - kMargin, -1, -1);
    button.item->DrawText(dc, button.caption, DT_SINGLELINE, -1, kMargin, kMargin, right, bottom);
    gdi::DeleteDC(dc);
    SDL_UnlockSurface(surface);
    return true;
}

void Follow(const SDL_Event& event, const SDL_Surface& surface, Button& button) {
    if (event.type == SDL_MOUSEMOTION)
        button.over = IsOver(surface, event.motion.x, event.motion.y);
    if (event.type == SDL_WINDOWEVENT && event.window.event == SDL_WINDOWEVENT_LEAVE)
        button.over = false;
    if (event.type == SDL_MOUSEBUTTONDOWN) button.down = button.over;
    if (event.type == SDL_MOUSEBUTTONUP) {
        if (button.down && button.over) std::puts("clicked"), std::fflush(stdout);
        button.down = false;
    }
}

int Work(SDL_Window* window, Button& button) {
    SDL_Event event;
    do {
        SDL_Surface* const surface = SDL_GetWindowSurface(window);  // a new one after a resize
        if (!surface || !Paint(surface, button)) return 1;
        SDL_UpdateWindowSurface(window);
        if (!SDL_WaitEvent(&event)) return 1;
        Follow(event, *surface, button);
    } while (event.type != SDL_QUIT);
    return 0;
}

int Screenshot(SDL_Window* window, const Button& button, const char* file) {
    SDL_Surface* const surface = SDL_GetWindowSurface(window);
    return surface && Paint(surface, button) && SDL_SaveBMP(surface, file) == 0 ? 0 : 1;
}

int Show(int argc, char** argv) {
    const Skin skin = LoadSkin(argv[1]);
    Button button{FindItem(skin, argv[2]), argc > 3 ? argv[3] : argv[2]};
    SDL_Window* const window =
        SDL_CreateWindow("VxGUI in SDL 2", SDL_WINDOWPOS_UNDEFINED, SDL_WINDOWPOS_UNDEFINED, kWidth,
                         kHeight, SDL_WINDOW_RESIZABLE);
    if (!window) return 1;
    const bool shot = argc > 5 && std::strcmp(argv[4], "--screenshot") == 0;
    const int status = shot ? Screenshot(window, button, argv[5]) : Work(window, button);
    SDL_DestroyWindow(window);
    return status;
}

}  // namespace

int main(int argc, char** argv) try {
    if (argc < 3) {
        std::fprintf(stderr, "usage: sdl2 SKIN ITEM [CAPTION [--screenshot FILE.bmp]]\n");
        return 2;
    }
    Global();  // sets the calling thread's apartment up
    if (SDL_Init(SDL_INIT_VIDEO) != 0) {
        std::fprintf(stderr, "%s\n", SDL_GetError());
        return 1;
    }
    const int status = Show(argc, argv);
    if (status != 0) std::fprintf(stderr, "no window of 32 bits a pixel: %s\n", SDL_GetError());
    SDL_Quit();
    return status;
} catch (const Error& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
