#include "app/program.h"

#include "app/fMain.h"
#include "settings/app.h"
#include "support/procedure.h"

namespace quenda {

void run_program(App& app, fMain& form, const std::function<void()>& loop) {
  const bool came_through = procedure_with_message(app.errors, "Import.main", {}, {}, [&] {
    form.Form_Load();
    loop();
  });
  if (!came_through) form.unload();
}

}  // namespace quenda
