#include "tests/real/ScreenReader.h"

#include <atspi/atspi.h>
#include <gio/gio.h>

namespace {

template <class Type>
using Held = std::unique_ptr<Type, decltype(&g_object_unref)>;

template <class Type>
Held<Type> Hold(Type* object) {
    return {object, &g_object_unref};
}

std::string Take(char* text) {
    const std::string taken = text ? text : "";
    g_free(text);
    return taken;
}

using Visitor = std::function<bool(AtspiAccessible*)>;

bool IsShowing(AtspiAccessible* object) {
    const auto states = Hold(atspi_accessible_get_state_set(object));
    return atspi_state_set_contains(states.get(), ATSPI_STATE_SHOWING);
}

// Visits `object` and what it holds, until a visit says that it was the last one. What is hidden holds
// nothing.
bool Visit(AtspiAccessible* object, const Visitor& visit) {
    if (!IsShowing(object)) return false;
    if (visit(object)) return true;
    const int children = atspi_accessible_get_child_count(object, nullptr);
    for (int i = 0; i < children; ++i)
        if (const auto child = Hold(atspi_accessible_get_child_at_index(object, i, nullptr));
            child && Visit(child.get(), visit))
            return true;
    return false;
}

bool VisitProgram(const std::string& program, const Visitor& visit) {
    const auto desktop = Hold(atspi_get_desktop(0));
    atspi_accessible_set_cache_mask(desktop.get(), ATSPI_CACHE_NONE);
    const int programs = atspi_accessible_get_child_count(desktop.get(), nullptr);
    for (int i = 0; i < programs; ++i) {
        const auto found = Hold(atspi_accessible_get_child_at_index(desktop.get(), i, nullptr));
        if (found && Take(atspi_accessible_get_name(found.get(), nullptr)) == program)
            return Visit(found.get(), visit);
    }
    return false;
}

ScreenReader::Object Describe(AtspiAccessible* object) {
    ScreenReader::Object seen;
    seen.role = Take(atspi_accessible_get_role_name(object, nullptr));
    seen.name = Take(atspi_accessible_get_name(object, nullptr));
    const auto states = Hold(atspi_accessible_get_state_set(object));
    const auto has = [&](AtspiStateType state) { return atspi_state_set_contains(states.get(), state) != 0; };
    seen.showing = has(ATSPI_STATE_SHOWING);
    seen.focused = has(ATSPI_STATE_FOCUSED);
    seen.checked = has(ATSPI_STATE_CHECKED);
    if (const auto value = Hold(atspi_accessible_get_value_iface(object)))
        seen.value = atspi_value_get_current_value(value.get(), nullptr);
    return seen;
}

// Acts on the showing object `name` of `program`.
bool ActOn(const std::string& program, const std::string& name, const Visitor& act) {
    bool done = false;
    VisitProgram(program, [&](AtspiAccessible* object) {
        const ScreenReader::Object seen = Describe(object);
        if (seen.name != name || !seen.showing || !act(object)) return false;
        return done = true;
    });
    return done;
}

bool DoPress(AtspiAccessible* object) {
    const auto action = Hold(atspi_accessible_get_action_iface(object));
    if (!action) return false;
    const int actions = atspi_action_get_n_actions(action.get(), nullptr);
    for (int i = 0; i < actions; ++i)
        if (Take(atspi_action_get_action_name(action.get(), i, nullptr)) == "Press")
            return atspi_action_do_action(action.get(), i, nullptr);
    return false;
}

// Tells the session that a screen reader is at work; programs start to describe themselves then.
void Announce() {
    const auto bus = Hold(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
    if (!bus) return;
    GVariant* answer = g_dbus_connection_call_sync(
        bus.get(), "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
        g_variant_new("(ssv)", "org.a11y.Status", "ScreenReaderEnabled", g_variant_new_boolean(TRUE)),
        nullptr, G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr);
    if (answer) g_variant_unref(answer);
}

}  // namespace

struct ScreenReader::Listener {
    explicit Listener(ScreenReader& itsReader) : reader(itsReader) {
        listener = atspi_event_listener_new(Hear, this, nullptr);
        for (const char* event : {"object:state-changed:focused", "object:state-changed:showing",
                                  "object:property-change:accessible-name", "window:activate"})
            atspi_event_listener_register(listener, event, nullptr);
    }
    ~Listener() { g_object_unref(listener); }

    static void Hear(AtspiEvent* event, void* self) {
        ScreenReader& reader = static_cast<Listener*>(self)->reader;
        ++reader.events_;
        const std::string type = event->type;
        if (event->source && event->detail1 != 0) {
            const Object seen = Describe(event->source);
            if (type.find("focused") != type.npos) reader.heard_.push_back("focus " + seen.name);
            if (type.find("showing") != type.npos && seen.role == "notification")
                reader.heard_.push_back("says " + seen.name);
        }
        g_boxed_free(ATSPI_TYPE_EVENT, event);
    }

    ScreenReader& reader;
    AtspiEventListener* listener;
};

ScreenReader::ScreenReader() {
    atspi_init();
    atspi_set_timeout(20'000, 20'000);  // milliseconds: a press may end a game, which takes its time
    Announce();
    listener_ = std::make_unique<Listener>(*this);
}

ScreenReader::~ScreenReader() = default;

std::vector<ScreenReader::Object> ScreenReader::Read(const std::string& program) const {
    std::vector<Object> shown;
    VisitProgram(program, [&](AtspiAccessible* object) {
        if (Object seen = Describe(object); seen.showing) shown.push_back(std::move(seen));
        return false;
    });
    return shown;
}

bool ScreenReader::Press(const std::string& program, const std::string& name) const {
    return ActOn(program, name, DoPress);
}

bool ScreenReader::SetText(const std::string& program, const std::string& name,
                           const std::string& text) const {
    return ActOn(program, name, [&](AtspiAccessible* object) {
        const auto field = Hold(atspi_accessible_get_editable_text_iface(object));
        return field && atspi_editable_text_set_text_contents(field.get(), text.c_str(), nullptr);
    });
}

void ScreenReader::Key(unsigned keysym) {
    atspi_generate_keyboard_event(static_cast<glong>(keysym), nullptr, ATSPI_KEY_SYM, nullptr);
}

bool ScreenReader::Await(const std::function<bool()>& holds) const {
    bool late = false;
    const guint timer = g_timeout_add_seconds(
        30, [](void* flag) { return *static_cast<bool*>(flag) = true, G_SOURCE_REMOVE; }, &late);
    bool held = false;
    do {
        // What is heard while it is being looked counts: the look may have come too early for it.
        const unsigned before = events_;
        held = holds();
        while (!held && !late && events_ == before) g_main_context_iteration(nullptr, TRUE);
    } while (!held && !late);
    if (!late) g_source_remove(timer);
    return held;
}
