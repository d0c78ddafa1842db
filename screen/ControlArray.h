#pragma once

#include <array>
#include <concepts>
#include <utility>

#include "platform/controls/MouseControl.h"

// The place of one element of a control array.
struct Spot {
    QWidget* holder;
    TwipsRect place;
    QString caption{};
};

// The spots of `N` elements in `holder`, row by row in `columns` columns; `first` is that of the first
// element; columns are `stepX` apart, rows `stepY`.
template <std::size_t N>
std::array<Spot, N> Grid(QWidget* holder, const TwipsRect& first, int columns, Twips stepX, Twips stepY) {
    std::array<Spot, N> spots{};
    for (int i = 0; i < int(N); ++i)
        spots[std::size_t(i)] = {
            holder,
            {first.left + i % columns * stepX, first.top + i / columns * stepY, first.width, first.height}};
    return spots;
}

// A control array: `N` controls with one name, indexed by the model's integers. They are built in place,
// since controls can be neither copied nor moved.
template <class ControlType, std::size_t N>
class ControlArray {
public:
    // `more`: further arguments of a control's constructor.
    template <class... More>
    ControlArray(const char* name, const std::array<Spot, N>& spots, More... more)
        : controls_(Build(name, spots, std::make_index_sequence<N>(), more...)) {}

    // index: 0 .. N - 1.
    ControlType& operator[](std::integral auto index) { return controls_[static_cast<std::size_t>(index)]; }
    const ControlType& operator[](std::integral auto index) const {
        return controls_[static_cast<std::size_t>(index)];
    }
    static constexpr std::int16_t size() { return N; }
    ControlType* begin() { return controls_.data(); }
    ControlType* end() { return controls_.data() + N; }
    const ControlType* begin() const { return controls_.data(); }
    const ControlType* end() const { return controls_.data() + N; }

private:
    template <std::size_t... I, class... More>
    static std::array<ControlType, N> Build(const char* name, const std::array<Spot, N>& spots,
                                            std::index_sequence<I...>, More... more) {
        return {ControlType(
            spots[I].holder,
            {QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(I), spots[I].place, spots[I].caption},
            more...)...};
    }

    std::array<ControlType, N> controls_;
};

// Connects `event` of each element to `handler` of `form`, which gets the element's index.
template <class ControlType, std::size_t N, class Form>
void OnEach(ControlArray<ControlType, N>& controls, std::type_identity_t<MouseHandler ControlType::*> event,
            Form& form, void (Form::*handler)(std::int16_t, std::int16_t, std::int16_t, float, float)) {
    for (std::int16_t index = 0; index < controls.size(); ++index)
        controls[index].*event = [&form, handler, index](const MouseInput& in) {
            (form.*handler)(index, in.button, in.shift, in.x, in.y);
        };
}
