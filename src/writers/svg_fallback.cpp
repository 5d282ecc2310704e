#include "writers/svg_fallback.h"

#include <cairo.h>
#include <librsvg/rsvg.h>

#include <memory>

#include "platform/i18n.h"

namespace deckforge {
namespace ppt {

namespace {

// Beyond this a fallback costs more memory than any screen can show.
unsigned const kMaxSide = 16384;

cairo_status_t appendBytes(void* closure, unsigned char const* data, unsigned int length) {
    static_cast<std::string*>(closure)->append(reinterpret_cast<char const*>(data), length);
    return CAIRO_STATUS_SUCCESS;
}

}  // namespace

std::string renderSvgToPng(u16string const& path, unsigned width, unsigned height) {
    if (width == 0 || height == 0 || width > kMaxSide || height > kMaxSide) return {};
    GError* error = nullptr;
    std::unique_ptr<RsvgHandle, decltype(&g_object_unref)> handle(
        rsvg_handle_new_from_file(fl::i18n::to_utf8(path).c_str(), &error), &g_object_unref);
    if (error) g_error_free(error);
    if (!handle) return {};

    std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface(
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, static_cast<int>(width), static_cast<int>(height)),
        &cairo_surface_destroy);
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return {};
    std::unique_ptr<cairo_t, decltype(&cairo_destroy)> context(cairo_create(surface.get()), &cairo_destroy);
    RsvgRectangle const viewport{0.0, 0.0, static_cast<double>(width), static_cast<double>(height)};
    gboolean const drawn = rsvg_handle_render_document(handle.get(), context.get(), &viewport, &error);
    if (error) g_error_free(error);
    if (!drawn) return {};
    cairo_surface_flush(surface.get());

    std::string png;
    if (cairo_surface_write_to_png_stream(surface.get(), &appendBytes, &png) != CAIRO_STATUS_SUCCESS)
        return {};
    return png;
}

}  // namespace ppt
}  // namespace deckforge
