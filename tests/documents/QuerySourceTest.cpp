#include "documents/tables/QuerySource.h"

#include "documents/ChartDocument.h"
#include "documents/tables/Query.h"

#include <gtest/gtest.h>

namespace millichart {

TEST(QuerySource, IsShownWithoutItsPasswords) {
    const std::vector<std::array<std::string, 2>> kShown{
        {"sales.csv", "sales.csv"},
        {"sqlite:data/sales.db", "data/sales.db"},
        {"odbc:sales", "odbc:sales"},
        {"odbc:sales;UID=me;Pwd=a b", "odbc:sales;UID=me;Pwd=***"},
        {"odbc:DSN=sales; PASSWORD = {a;b}}c} ;Port=1", "odbc:DSN=sales; PASSWORD =***;Port=1"},
        {"odbc:PWD=a;b;c", "odbc:PWD=***;***;***"},
        {"odbc:PWD={a;never closed;Port=1", "odbc:PWD=***"},
        {"odbc:AccessToken=x;SSLKey=y;pqopt={password=z}", "odbc:AccessToken=***;SSLKey=***;pqopt=***"},
        {"odbc:Server=postgres://me:x@host/", "odbc:Server=***"},
    };
    for (const auto& [source, shown] : kShown) {
        EXPECT_EQ(ShownSource(source), shown);
        EXPECT_EQ(HoldsPassword(source), shown.find("***") != std::string::npos) << source;
    }
    EXPECT_EQ(WithoutPasswords("login {s;1} or s;1 failed", "odbc:PWD={s;1}"), "login *** or *** failed");
    EXPECT_EQ(WithoutPasswords("nothing", "odbc:PWD="), "nothing");
}

TEST(QuerySource, ADocumentNamesNeitherPasswordsNorWhatIsLoadedOrWritten) {
    for (const std::string source :
         {"sqlite:a.db", "odbc:sales", "odbc:DSN=sales;UID=me", "odbc:Server=/tmp/socket;Database=d",
          "odbc:Driver={PostgreSQL Unicode};Server=db\\one;Port=5432;Database=d;SSLmode=require"}) {
        EXPECT_EQ(ExpectedOfDocument(source), "") << source;
    }
    for (const std::string source :
         {"odbc:DSN=a;PWD=b", "odbc:Driver=/tmp/evil.so", "odbc:Driver={.\\evil.dll}", "odbc:FileDSN=a",
          "odbc:DSN=a;SaveFile=b", "odbc:DSN=a;ConnSettings=delete from t", "odbc:Database={a;Driver=/b}",
          "odbc:Database={a;ConnSettings=b", "odbc:Server={a}};ConnSettings=b}", "odbc:DSN=a;stray"}) {
        EXPECT_NE(ExpectedOfDocument(source), "") << source;
    }
    const std::string source = R"("odbc:DSN=a;PWD=s3cret")";
    for (const std::string& data :
         {"\"source\": " + source, "\"csv\": " + source, "\"values\": [1], \"source\": " + source}) {
        const auto document = ChartDocument::FromText(R"({"kind": "pie", "data": {)" + data + "}}");
        EXPECT_FALSE(document.IsSound()) << data;
        for (const penlode::Diagnostic& diagnostic : document.Diagnostics()) {
            EXPECT_EQ((diagnostic.File + diagnostic.Text).find("s3cret"), std::string::npos)
                << diagnostic.Text;
        }
    }
}

TEST(QuerySource, AFileIsTheDocumentsAndAConnectionIsWhatTheManagerTakes) {
    EXPECT_EQ(QuerySourceIn("charts", "sqlite:sales.db"),
              "sqlite:" + Utf8FromPath(PathFromUtf8("charts") / "sales.db"));
    EXPECT_EQ(QuerySourceIn("charts", "odbc:sales"), "odbc:sales");
    EXPECT_EQ(OdbcConnection("odbc:sales"), "DSN=sales");
    EXPECT_EQ(OdbcConnection("odbc:sales;UID=me"), "DSN=sales;UID=me");
    EXPECT_EQ(OdbcConnection("odbc:Driver=X;Server=y"), "Driver=X;Server=y");
}

} // namespace millichart
