#include "runtime/fault.h"

#include <gtest/gtest.h>

namespace {

using namespace runtime;

TEST(FaultTest, CarriesItsNumberAndTheWordsForIt) {
  const Fault fault(FaultNumber::TypeMismatch);
  EXPECT_EQ(fault.number, FaultNumber::TypeMismatch);
  EXPECT_EQ(fault.description, "Typen unverträglich");
}

TEST(FaultTest, HasTheUsualWords) {
  EXPECT_EQ(FaultDescription(FaultNumber::InvalidCall), "Ungültiger Prozeduraufruf oder ungültiges Argument");
  EXPECT_EQ(FaultDescription(FaultNumber::Overflow), "Überlauf");
  EXPECT_EQ(FaultDescription(FaultNumber::OutOfRange), "Index außerhalb des gültigen Bereichs");
  EXPECT_EQ(FaultDescription(FaultNumber::FileNotFound), "Datei nicht gefunden");
  EXPECT_EQ(FaultDescription(FaultNumber::InputPastEnd), "Eingabe hinter Dateiende");
  EXPECT_EQ(FaultDescription(FaultNumber::AccessDenied), "Zugriff verweigert");
  EXPECT_EQ(FaultDescription(FaultNumber::PathNotFound), "Pfad nicht gefunden");
}

TEST(FaultTest, EveryNumberHasWordsOfItsOwn) {
  const std::string unknown = FaultDescription(static_cast<FaultNumber>(1));
  EXPECT_EQ(unknown, "Anwendungs- oder objektdefinierter Fehler");
  for (const FaultNumber number :
       {FaultNumber::InvalidCall, FaultNumber::Overflow, FaultNumber::OutOfRange, FaultNumber::TypeMismatch,
        FaultNumber::FunctionMissing, FaultNumber::BadFileNumber, FaultNumber::FileNotFound, FaultNumber::DeviceError,
        FaultNumber::FileExists, FaultNumber::DiskFull, FaultNumber::InputPastEnd, FaultNumber::BadFileName,
        FaultNumber::AccessDenied, FaultNumber::PathAccess, FaultNumber::PathNotFound, FaultNumber::ObjectNotSet,
        FaultNumber::FormShown}) {
    EXPECT_NE(FaultDescription(number), unknown) << static_cast<int>(number);
    EXPECT_NE(FaultDescription(number), "") << static_cast<int>(number);
  }
}

TEST(FaultTest, SkipPassesOverOneStatement) {
  int done = 0;
  Skip([&] {
    ++done;
    throw Fault(FaultNumber::Overflow);
  });
  Skip([&] { ++done; });
  EXPECT_EQ(done, 2);
}

TEST(FaultTest, SkipPassesOverNothingElse) {
  struct Other {};
  EXPECT_THROW(Skip([] { throw Other{}; }), Other);
}

}  // namespace
