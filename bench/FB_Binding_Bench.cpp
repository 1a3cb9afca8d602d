// What is typed for a pin, and generated for pins, in a project as full as a bus can be.
#include "base/Session_State.h"
#include "bench/Big_Project.h"
#include "db/Project_Session.h"
#include "fb/model/FB_Binding_Search.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Variable_Generation.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

/// A key in the cell of a pin: what fits is found, and what the text would mean.
void typeKey(benchmark::State& state, const QString& text) {
  constexpr size_t cOffered = 50;
  ProjectDatabase database;
  Big_Project(database, Big_Project::cBusAddresses).fill();
  const Address_Usage usage(database);
  const FB_Binding_Search search(database, usage);
  for (auto _ : state) {
    benchmark::DoNotOptimize(search.find(text, cOffered));
    benchmark::DoNotOptimize(search.meaning(text));
  }
}

void generate(benchmark::State& state) {
  const auto blocks = static_cast<int>(state.range(0));
  Session_State sessionState;
  const QTemporaryDir folder;
  Project_Session session(sessionState);
  session.create(folder.filePath(QStringLiteral("Haus.zpro")), {});
  const QUuid page = session.database().mFbPages.pages().at(0).mGuid;
  QList<FB_Variable_Generation::Request> requests;
  for (int i = 0; i < blocks; ++i) {
    requests.append({FB_Page_Edits::create(session, page, 50, {}).mBlocks.first()});
  }
  session.history().commit();
  for (auto _ : state) {
    if (const auto result = FB_Variable_Generation::generate(session, requests); !result) {
      state.SkipWithError(qPrintable(result.mError));
      break;
    }
    state.PauseTiming();
    session.history().undo();
    state.ResumeTiming();
  }
}

BENCHMARK_CAPTURE(typeKey, a_word, QStringLiteral("decke küche"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(typeKey, a_number, QStringLiteral("12/3"))->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(typeKey, nothing_found, QStringLiteral("Neuer Merker"))->Unit(benchmark::kMillisecond);
BENCHMARK(generate)->Arg(1)->Arg(200)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
