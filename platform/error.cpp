#include "platform/error.h"

#include <new>
#include <stdexcept>
#include <utility>

namespace platform {

namespace {

/// What the error boxes of a Korean desktop say for the number.
Text description_of(ErrorNumber number) {
    switch (number) {
        case ErrorNumber::invalid_call:
            return u"프로시저 호출 또는 인수가 잘못되었습니다.";
        case ErrorNumber::overflow:
            return u"오버플로입니다.";
        case ErrorNumber::out_of_memory:
            return u"메모리가 부족합니다.";
        case ErrorNumber::subscript_out_of_range:
            return u"아래 첨자 사용이 잘못되었습니다.";
        case ErrorNumber::division_by_zero:
            return u"0으로 나누었습니다.";
        case ErrorNumber::type_mismatch:
            return u"형식이 일치하지 않습니다.";
        case ErrorNumber::library_not_loaded:
            return u"DLL을 로드하는 중 오류가 발생했습니다.";
        case ErrorNumber::bad_file_name:
            return u"파일 이름이나 번호가 잘못되었습니다.";
        case ErrorNumber::file_not_found:
            return u"파일을 찾을 수 없습니다.";
        case ErrorNumber::file_exists:
            return u"파일이 이미 있습니다.";
        case ErrorNumber::disk_full:
            return u"디스크가 꽉 찼습니다.";
        case ErrorNumber::permission_denied:
            return u"사용 권한이 없습니다.";
        case ErrorNumber::path_access:
            return u"경로/파일 액세스 오류입니다.";
        case ErrorNumber::path_not_found:
            return u"경로를 찾을 수 없습니다.";
        case ErrorNumber::invalid_property_value:
            return u"속성 값이 잘못되었습니다.";
        case ErrorNumber::no_such_export:
            return u"지정한 DLL 함수를 찾을 수 없습니다.";
        case ErrorNumber::server_unavailable:
            return u"원격 서버가 없거나 사용할 수 없습니다.";
        case ErrorNumber::dialog_cancelled:
            return u"취소를 선택했습니다.";
        case ErrorNumber::no_current_record:
            return u"현재 레코드가 없습니다.";
        case ErrorNumber::no_such_field:
            return u"요청한 이름의 항목을 찾을 수 없습니다.";
        case ErrorNumber::connection_closed:
            return u"연결이 닫혀 있어 이 작업을 할 수 없습니다.";
        case ErrorNumber::database_unusable:
            return u"데이터베이스를 열 수 없습니다.";
        case ErrorNumber::wrong_database_password:
            return u"데이터베이스 암호가 올바르지 않습니다.";
        case ErrorNumber::broken_statement:
            return u"SQL 문에 구문 오류가 있습니다.";
        case ErrorNumber::protocol_not_supported:
            return u"지원하지 않는 프로토콜입니다.";
        case ErrorNumber::request_not_completed:
            return u"요청을 완료할 수 없습니다.";
        case ErrorNumber::request_timed_out:
            return u"요청 시간이 초과되었습니다.";
    }
    return u"응용 프로그램 정의 오류 또는 개체 정의 오류입니다.";
}

}  // namespace

RuntimeError::RuntimeError(ErrorNumber number) : RuntimeError(number, description_of(number)) {}

RuntimeError::RuntimeError(ErrorNumber number, Text description)
    : number_(number),
      description_(std::move(description)),
      what_(std::to_string(static_cast<int>(number)) + ": " + to_utf8(description_)) {}

RuntimeError error_of(const std::exception& failure) {
    if (const auto* error = dynamic_cast<const RuntimeError*>(&failure)) return *error;
    const bool no_memory = dynamic_cast<const std::bad_alloc*>(&failure) != nullptr ||
                           dynamic_cast<const std::length_error*>(&failure) != nullptr;
    return RuntimeError(no_memory ? ErrorNumber::out_of_memory : ErrorNumber::invalid_call);
}

}  // namespace platform
