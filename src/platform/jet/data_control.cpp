// A data channel.
#include "platform/jet/data_control.h"

#include "platform/base/runtime_error.h"
#include "platform/jet/engine.h"
#include "platform/jet/recordset_impl.h"

namespace zv::jet {

DataControl::DataControl(DBEngine& engine) : engine_(&engine) {}
DataControl::~DataControl() = default;
DataControl::DataControl(DataControl&&) noexcept = default;

void DataControl::Refresh() {
    std::shared_ptr<Database> database = engine_->OpenDatabase(DatabaseName);
    recordset_ = std::make_unique<jet::Recordset>(database, RecordSource);
    database_ = std::move(database);
}

jet::Recordset& DataControl::Recordset() {
    if (!recordset_) throw RuntimeError(91);
    return *recordset_;
}

QString DataControl::boundText(const QString& column) {
    return recordset_ ? recordset_->impl().boundText(column) : QString();
}

void DataControl::Close() {
    recordset_.reset();
    database_.reset();
}

} // namespace zv::jet
