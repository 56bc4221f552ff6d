#include "ui_test_support.hpp"

#include <QApplication>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <thread>

#include "forms/form_context.hpp"
#include "ui/style.hpp"

namespace bm::ui::test {

namespace {

ProvaValues& Values(FormContext& f) { return f.values<ProvaValues>(); }

// Every kind of control, with handlers that make each window operation happen.
CalculatorForm Prova() {
    CalculatorForm f("frmprova", "PROVA DI FINESTRA", {1500, 900, 7200, 6000});
    f.frame("Frame1", {240, 240, 3000, 1320}, "Gruppo uno");
    f.option("Option1(0)", {240, 360, 2520, 300}, "PRIMA").in("Frame1");
    f.option("Option1(1)", {240, 720, 2520, 300}, "SECONDA").in("Frame1");
    f.frame("Frame2", {3600, 240, 3000, 1320}, "Gruppo due");
    f.option("Option1(2)", {240, 360, 2520, 300}, "TERZA").in("Frame2");
    f.option("Option1(3)", {240, 720, 2520, 300}, "QUARTA").in("Frame2");

    f.line("Line1", 240, 1800, 6600, 1800).color(colors::Red).width(3);
    f.shape("Shape1", {5400, 3600, 600, 600}, ShapeKind::Circle).filled(colors::Blue);

    f.label("lblcaption", {240, 2040, 1200, 300}, "VALORE :");
    f.textBox("txtvalore", {1560, 1980, 1800, 360}).tip("immissione dato");
    f.label("lblsopra", {3600, 1980, 1800, 255}, "In maiuscolo");
    f.textBox("txtmaiuscolo", {3600, 2280, 1800, 360});
    f.label("lblris", {240, 2760, 4200, 420}).font(12, true).aligned(Align::Center).color(colors::Red).framed();
    f.label("lblhtml", {4560, 2760, 2400, 300}, "<b>non grassetto</b>").noWrap();

    f.button("cmdcalcola", {240, 3360, 1200, 420}, "CALCOLA");
    f.button("cmdsposta", {1560, 3360, 1200, 420}, "SPOSTA");
    f.button("cmddomanda", {2880, 3360, 1200, 420}, "DOMANDA");
    f.button("cmdstampa", {4080, 4440, 1200, 420}, "STAMPA");
    f.button("cmdguasto", {240, 3960, 1200, 420}, "GUASTO");
    f.checkBox("chkopzione", {1560, 3960, 1800, 300}, "OPZIONE");
    f.list("cbolista", {240, 4440, 3600, 300}, "SCEGLI  =  UNA RIGA").rows({"UNO = 1", "DUE = 2"}).tip("clicca sulla freccia");
    f.picture("Image1", {6000, 2160, 720, 480}, "exit").tip("immagine");
    f.button("cmdesci", {5400, 4440, 1200, 420}).image("exit").tip("esce");
    f.timer("Timer1", 40);

    f.onLoad([](FormContext& c) { c.setTimerEnabled("Timer1", false); });
    f.onChange("txtvalore", [](FormContext& c) {
        ++Values(c).changes;
        c.setCaption("lblris", c.text("txtvalore") + "!");
    });
    // The handler rewrites the box it was typed in: one more Change, and no more.
    f.onChange("txtmaiuscolo", [](FormContext& c) {
        ++Values(c).changes;
        std::string t = c.text("txtmaiuscolo");
        for (char& ch : t) ch = static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
        c.setText("txtmaiuscolo", t);
    });
    f.onClick("cmdcalcola", [](FormContext& c) {
        if (c.text("txtvalore").empty()) {
            c.ShowMessage("MANCANO DATI", 48, "MESSAGGIO DI ERRORE");
            c.setFocus("txtvalore");
            return;
        }
        c.setCaption("lblris", "OK " + c.text("txtvalore"));
    });
    f.onClick("cmdsposta", [](FormContext& c) {
        c.move("lblris", 1200, 5100);
        c.hide("lblcaption");
        c.setColor("lblris", colors::Blue);
        c.setTitle("PROVA SPOSTATA");
        c.setTimerEnabled("Timer1", true);
    });
    f.onClick("cmddomanda", [](FormContext& c) {
        c.setCaption("lblris", std::to_string(c.ShowMessage("SEI SICURO ?", 36, "AVVISO")));
    });
    f.onClick("cmdstampa", [](FormContext& c) {
        c.hide("cmdstampa");
        c.PrintWindow();
        c.show("cmdstampa");
    });
    f.onClick("cmdguasto", [](FormContext& c) { c.fail(FaultKind::DivisionByZero); });
    f.onClick("Image1", [](FormContext& c) { c.setCaption("lblris", "immagine"); });
    f.onClick("chkopzione", [](FormContext& c) {
        c.setCaption("lblris", c.chosen("chkopzione") ? "scelta" : "non scelta");
    });
    f.onClick("cmdesci", [](FormContext& c) { c.close(); });
    f.onTimer("Timer1", [](FormContext& c) {
        ++Values(c).ticks;
        if (Values(c).ticks >= 3) c.setTimerEnabled("Timer1", false);
    });
    return f;
}

// A small window to open modal or modeless.
CalculatorForm Piccola() {
    CalculatorForm f("frmpiccola", "PICCOLA", {3000, 3000, 4200, 2400});
    f.textBox("txtnota", {240, 240, 3000, 360});
    f.button("cmdesci", {240, 840, 1200, 420}, "ESCI");
    f.onClick("cmdesci", [](FormContext& c) { c.close(); });
    return f;
}

// A watchdog: a test still running after this long is stuck in a loop nobody
// ends (a box or a modal window the test did not expect), and the run stops
// there with the test's name instead of hanging.
std::atomic<long long> gDeadline{0};
std::atomic<const ::testing::TestInfo*> gCurrentTest{nullptr};

class Watchdog : public ::testing::EmptyTestEventListener {
public:
    void OnTestStart(const ::testing::TestInfo& info) override {
        gCurrentTest = &info;
        gDeadline = Now() + 30'000;
    }
    void OnTestEnd(const ::testing::TestInfo&) override { gDeadline = 0; }

    static long long Now() {
        using namespace std::chrono;
        return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
    }
};

}  // namespace

TestLibrary::TestLibrary() {
    forms_.emplace("frmprova", Prova());
    forms_.emplace("frmpiccola", Piccola());
}

const CalculatorForm* TestLibrary::find(std::string_view name) const {
    if (auto it = forms_.find(name); it != forms_.end()) return &it->second;
    return workbook_.find(name);
}

UiTest::UiTest() {
    host.attach(program);
    host.setMessageAnswerer([this](QMessageBox& box) {
        boxes.push_back({box.text().toStdString(), box.windowTitle().toStdString(), box.icon(), box.standardButtons()});
        if (answers_.empty()) {
            ADD_FAILURE() << "unexpected message box: \"" << box.text().toStdString() << "\" ("
                          << box.windowTitle().toStdString() << ")";
            return QMessageBox::Ok;
        }
        const QMessageBox::StandardButton a = answers_.front();
        answers_.pop_front();
        return a;
    });
    host.setProcessExit([this](int status) { exits.push_back(status); });
}

UiTest::~UiTest() {
    EXPECT_TRUE(answers_.empty()) << answers_.size() << " message box(es) expected but never shown";
}

QWidget* UiTest::widget(std::string_view form, std::string_view control) const {
    FormWindow* w = host.window(form);
    return w == nullptr ? nullptr : w->control(control);
}

const ControlState& UiTest::state(std::string_view form, std::string_view control) {
    return program.state(form)->control(ControlKey::Parse(control));
}

ProvaValues& UiTest::prova() {
    FormState* st = program.state("frmprova");
    if (!st->values.has_value()) st->values.emplace<ProvaValues>();
    return std::any_cast<ProvaValues&>(st->values);
}

void UiTest::whileModal(const std::function<void()>& open, const std::function<void()>& body) {
    bool ran = false;
    QTimer::singleShot(0, [&] {
        ran = true;
        body();
    });
    open();
    EXPECT_TRUE(ran) << "no modal loop ran";
}

void FlushDeletions() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

}  // namespace bm::ui::test

int main(int argc, char** argv) {
    // The tests draw offscreen; gtest's test listing runs with no environment.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    bm::ui::ApplyWorkbookStyle(app);
    ::testing::InitGoogleTest(&argc, argv);
    ::testing::UnitTest::GetInstance()->listeners().Append(new bm::ui::test::Watchdog);
    std::thread([] {
        using bm::ui::test::Watchdog;
        for (;;) {
            std::this_thread::sleep_for(std::chrono::milliseconds(200));
            const long long deadline = bm::ui::test::gDeadline;
            if (deadline != 0 && Watchdog::Now() > deadline) {
                const ::testing::TestInfo* info = bm::ui::test::gCurrentTest;
                std::fprintf(stderr, "watchdog: %s.%s is stuck (a message box or modal window nobody closes?)\n",
                             info != nullptr ? info->test_suite_name() : "?", info != nullptr ? info->name() : "?");
                std::fflush(nullptr);
                std::_Exit(3);
            }
        }
    }).detach();
    return RUN_ALL_TESTS();
}
