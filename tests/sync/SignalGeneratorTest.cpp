#include "Course.h"
#include "DOC_Exception.h"
#include "DOC_VIGen.h"
#include "GUI_MarqueeProgressDialog.h"
#include "VisaFile.h"
#include "VisaLibrary.h"
#include "support/TestHost.h"
#include "vi.h"

#include <QApplication>

#include <dlfcn.h>
#include <gmock/gmock.h>

#include <limits>
#include <memory>

namespace {

constexpr unsigned int Address = 0xC0A8010A;

const QStringList StepsOf2000{
    "viPrintf *RST\n",
    "viClear",
    "viPrintf DISP ON\n",
    "viPrintf DISP:TEXT \"ZEB4 Setting Start\"\n",
    "viPrintf FUNC:SHAP PULS\n",
    "viPrintf FREQ 2000\n",
    "viPrintf VOLT:LOW 0\n",
    "viPrintf VOLT:HIGH 5\n",
    "viPrintf FUNC:PULS:DCYC 50\n",
    "viPrintf OUTP ON\n",
    "viPrintf DISP:TEXT \"ZEB4 Setting End\"\n",
};

const QStringList Look{"viPrintf FREQ?\n", "viScanf"};

/// Counts the progress dialogs that are shown.
class DialogWatch : public QObject {
public:
    DialogWatch() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (qobject_cast<GUI_MarqueeProgressDialog*>(object) != nullptr && event->type() == QEvent::Show) {
            ++shown;
        }
        return QObject::eventFilter(object, event);
    }

    int shown = 0;
};

class SignalGeneratorTest : public testing::Test, public TestHost {
protected:
    void connect() {
        ASSERT_TRUE(generator->loadDriver());
        ASSERT_TRUE(generator->connect(0, Address));
        file.journal();
    }
    QByteArray scriptOfReply(const char* question, const QByteArray& reply) {
        return QByteArray(R"({"replies": {")") + question + "\": " + reply + "}}";
    }

    VisaFile file;
    std::unique_ptr<DOC_SignalGenerator> generator = std::make_unique<DOC_VIGen>(&host);
};

TEST_F(SignalGeneratorTest, AStepThatIsRefusedIsTheLast) {
    connect();
    for (int n = 1; n <= 10; ++n) {
        file.script(R"({"viPrintf": {"status": -1, "from": )" + QByteArray::number(n) + "}}");
        EXPECT_THROW(generator->setFrequency(2000), DOC_Exception);
        // The second step is no command; at the tenth command all eleven steps have been made.
        EXPECT_EQ(file.journal(), StepsOf2000.mid(0, n == 1 ? 1 : n + 1));
    }
    file.script(R"({"viClear": {"status": -1}})");
    try {
        generator->setFrequency(2000);
        FAIL() << "no exception";
    } catch (const DOC_Exception& e) {
        EXPECT_STREQ(e.what(), "Failed sync to signal generator");
    }
    EXPECT_EQ(file.journal(), StepsOf2000.mid(0, 2));
}

TEST_F(SignalGeneratorTest, WhatIsNotConnectedIsLeftAlone) {
    ASSERT_TRUE(generator->loadDriver());
    generator->setFrequency(2000);
    EXPECT_EQ(generator->getFrequency(), 0);
    EXPECT_EQ(generator->getIdentity(), QString());
    EXPECT_FALSE(generator->isSupported());
    EXPECT_FALSE(generator->isConnected());
    EXPECT_EQ(file.journal(), QStringList());
    EXPECT_EQ(generator->getFrequencies(), (QList<int>{1000, 2000, 3000, 4000, 5000, 6000, 7000, 8000, 9000, 10000}));
}

TEST_F(SignalGeneratorTest, ItIsOpenedOnceAtItsAddress) {
    ASSERT_TRUE(generator->loadDriver());
    DialogWatch watch;
    EXPECT_TRUE(generator->connect(0, Address));
    EXPECT_THAT(file.journal(),
                testing::IsSupersetOf<QString>({"viOpenDefaultRM", "viOpen TCPIP0::192.168.1.10::inst0::INSTR"}));
    EXPECT_EQ(watch.shown, 1);

    EXPECT_TRUE(generator->connect(0, Address));
    EXPECT_EQ(file.journal(), Look);
    EXPECT_EQ(watch.shown, 1);

    generator->disconnect();
    EXPECT_EQ(file.journal(), (QStringList{"viClose instrument", "viClose manager"}));
    EXPECT_FALSE(generator->connect(1, Address)) << "no such kind of connection";
}

TEST_F(SignalGeneratorTest, LostItStaysLostUntilTheNextConnect) {
    connect();
    file.script(R"({"viPrintf": {"status": -1073807298}})");
    EXPECT_FALSE(generator->isConnected());
    file.script("{}");
    file.journal();
    EXPECT_FALSE(generator->isConnected());
    EXPECT_EQ(file.journal(), QStringList());

    EXPECT_TRUE(generator->connect(0, Address));
    EXPECT_EQ(file.journal().mid(0, 2), (QStringList{"viClose instrument", "viClose manager"}));
    EXPECT_TRUE(generator->isConnected());
}

TEST_F(SignalGeneratorTest, AFrequencyIsReadAsAWholeNumber) {
    constexpr int fails = -1;
    const QByteArray zeros(1019, '0');
    const struct {
        const char* name;
        QByteArray reply;
        int hertz;
    } rows[] = {
        {"with an exponent", "\"+2.5000000000000E+03\\n\"", 2500},
        {"with a fraction", "\"2999.9\\n\"", 2999},
        {"with line feeds anywhere", "\"\\n20\\n00\\n\"", 2000},
        {"a number for no value", "\"9.91e37\"", fails},
        {"a number below 0", "\"-1\"", fails},
        {"no number", "\"nan\"", fails},
        {"a word", "\"fast\"", fails},
        {"a line feed alone", "\"\\n\"", fails},
        {"no answer", "null", fails},
        {"1023 bytes", '"' + zeros + "2000\"", 2000},
        {"1024 bytes", "\"0" + zeros + "2000\"", 2000},
        {"1025 bytes, of which the last is cut off", "\"00" + zeros + "2000\"", 200},
    };
    connect();
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        file.script(scriptOfReply("FREQ?", row.reply));
        try {
            EXPECT_EQ(generator->getFrequency(), row.hertz);
        } catch (const DOC_Exception& e) {
            EXPECT_EQ(row.hertz, fails);
            EXPECT_STREQ(e.what(), "Failed getFrequency");
        }
        EXPECT_EQ(generator->getIdentity(), "Bench Instruments,33210A,SN00000001,1.00-1.00-1\n")
            << "what is left of the reply answers the next question";
    }
}

TEST_F(SignalGeneratorTest, OneModelIsSupported) {
    const QMap<QByteArray, bool> identities{
        {"Maker,33210A,1,2", true},    {"Maker,33210a,1,2", false},
        {"Maker,33220A,1,2", false},   {"Maker,33210A,1", false},
        {"Maker,33210A,1,2,3", false}, {"Maker, 33210A,1,2", false},
        {"33210A,Maker,1,2", false},   {"", false},
    };
    connect();
    for (auto row = identities.begin(); row != identities.end(); ++row) {
        file.script(R"({"identity": ")" + row.key() + "\"}");
        if (row.key().isEmpty()) {
            EXPECT_THROW(generator->isSupported(), std::runtime_error);
        } else {
            EXPECT_EQ(generator->isSupported(), row.value()) << row.key().toStdString();
        }
    }
}

TEST_F(SignalGeneratorTest, ALibraryIsLoadedWholeOrNotAtAll) {
    VisaLibrary& visa = VisaLibrary::instance();
    const QString good = QStringLiteral(WREN_VISA_FILE);
    const auto isInMemory = [](const char* path) {
        void* handle = dlopen(path, RTLD_LAZY | RTLD_NOLOAD);
        if (handle != nullptr) {
            dlclose(handle);
        }
        return handle != nullptr;
    };
    visa.setFiles({QStringLiteral("/nowhere/visa64.dll")});
    EXPECT_FALSE(generator->loadDriver());
    visa.setFiles({QStringLiteral(WREN_HALF_VISA_FILE), good});
    EXPECT_FALSE(generator->loadDriver());
    EXPECT_FALSE(isInMemory(WREN_HALF_VISA_FILE));
    visa.setFiles({QStringLiteral("/nowhere/visa64.dll"), good});
    EXPECT_TRUE(generator->loadDriver());
}

TEST_F(SignalGeneratorTest, TheOneThatGoesClosesAndUnloads) {
    connect();
    DOC_VIGen other(&host);
    ASSERT_TRUE(other.loadDriver());
    ASSERT_TRUE(other.connect(0, Address));
    file.journal();
    generator.reset();
    EXPECT_EQ(file.journal(), (QStringList{"viClose instrument", "viClose manager"}));
    EXPECT_EQ(VisaLibrary::instance().calls().open, nullptr);
    EXPECT_FALSE(other.isConnected()) << "its library has gone";
}

}  // namespace
