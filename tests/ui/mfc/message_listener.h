// A window that stands in for a control and notes the messages that it is sent.
#pragma once

#include <type_traits>
#include <vector>

#include <afxcmn.h>
#include <gtest/gtest.h>

namespace ui_test {

struct HeardMessage {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

/// Answers every message by `answer`, once it exists.
class MessageListener {
public:
    MessageListener() {
        WNDCLASSW description = {};
        description.lpfnWndProc = &procedure;
        description.hInstance = ::GetModuleHandleW(nullptr);
        description.lpszClassName = L"ui_test listener";
        ::RegisterClassW(&description);
        m_window = ::CreateWindowExW(0, description.lpszClassName, L"", WS_POPUP, 0, 0, 50, 50, nullptr,
                                     nullptr, nullptr, this);
        ::SetWindowLongPtrW(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
    ~MessageListener() {
        ::SetWindowLongPtrW(m_window, GWLP_USERDATA, 0);
        ::DestroyWindow(m_window);
    }
    MessageListener(const MessageListener&) = delete;
    MessageListener& operator=(const MessageListener&) = delete;

    HWND window() const { return m_window; }
    std::vector<HeardMessage> take() { return std::exchange(m_heard, {}); }

    LRESULT answer = 0;
    /// Called for each message before it is answered; may look at what a parameter points to, or change it.
    std::function<void(const HeardMessage&)> look;

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        auto* const self = reinterpret_cast<MessageListener*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
        if (!self) return ::DefWindowProcW(window, message, wParam, lParam);
        const HeardMessage heard = {message, wParam, lParam};
        self->m_heard.push_back(heard);
        if (self->look) self->look(heard);
        return self->answer;
    }
    HWND m_window;
    std::vector<HeardMessage> m_heard;
};

/// A handle that is none, but is carried around as one.
template <class Handle>
Handle handle_of(UINT_PTR value) {
    return reinterpret_cast<Handle>(value);
}

/// A control object on a listener. TELLS(call, message, wParam, lParam) has the call send just that message,
/// and answer what the control answers.
template <class Control>
struct ToldControl : ::testing::Test {
    ToldControl() {
        listener.answer = kAnswer;
        control.Attach(listener.window());
    }
    ~ToldControl() override { control.Detach(); }

    template <class Call>
    void tells(const char* text, Call call, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        using Result = std::invoke_result_t<Call>;
        listener.take();
        if constexpr (std::is_void_v<Result>)
            call();
        else
            EXPECT_EQ(call(), answer_as<Result>()) << text;
        const auto heard = listener.take();
        ASSERT_EQ(heard.size(), 1U) << text;
        EXPECT_EQ(heard[0].message, message) << text;
        EXPECT_EQ(heard[0].wParam, wParam) << text;
        EXPECT_EQ(heard[0].lParam, lParam) << text;
    }
    template <class T>
    static LPARAM at(T& data) {
        return reinterpret_cast<LPARAM>(&data);
    }
    static LPARAM at(const wchar_t* text) { return reinterpret_cast<LPARAM>(text); }
    /// As a WPARAM, an index of an int.
    static WPARAM number(int index) { return static_cast<WPARAM>(index); }

    MessageListener listener;
    Control control;

private:
    static constexpr LRESULT kAnswer = 0x123400560078;  // more than an int holds
    template <class Result>
    static Result answer_as() {
        if constexpr (std::is_pointer_v<Result>)
            return reinterpret_cast<Result>(kAnswer);
        else if constexpr (std::is_same_v<Result, CSize> || std::is_same_v<Result, CPoint>)
            return Result(static_cast<DWORD>(kAnswer));
        else
            return static_cast<Result>(kAnswer);
    }
};

}  // namespace ui_test

#define TELLS(call, ...) \
    this->tells(         \
        #call, [&] { return call; }, __VA_ARGS__)
