#include "vxgui/platform/core7.h"

namespace vxgui::core7 {
namespace {

TraceSink& ApartmentSink() {
    thread_local TraceSink sink;
    return sink;
}

class SinkTrace final : public Trace {
public:
    void Start(const String& application, int32_t level) override {
        application_ = application;
        level_ = level;
    }

    void Write(const String& text, int32_t level) override {
        if (level < level_) return;
        const TraceSink sink = ApartmentSink();  // a copy: the sink may set another one
        if (sink) sink(application_, text, level);
    }

private:
    String application_;
    int32_t level_ = 0;
};

}  // namespace

Ref<Trace> CreateTrace() { return New<SinkTrace>(); }

void SetTraceSink(TraceSink sink) { ApartmentSink() = std::move(sink); }

}  // namespace vxgui::core7
