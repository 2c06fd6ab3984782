#include "Catalog/HttpAnswer.hpp"

#include <algorithm>

#include "Text/Utf8.hpp"

namespace Merivane::Catalog {

namespace {

constexpr std::uint64_t BytesPerMegabyte = 1048576;
constexpr std::uint32_t StatusOk = 200;
constexpr std::uint32_t StatusNotFound = 404;

const char* Words(NetworkFailure failure) {
    switch (failure) {
    case NetworkFailure::TimedOut:
        return "o servidor demorou demais para responder";
    case NetworkFailure::InvalidAddress:
        return "endereco invalido";
    case NetworkFailure::NameNotFound:
        return "endereco nao encontrado (sem internet, ou o nome do servidor esta errado)";
    case NetworkFailure::NoConnection:
        return "nao foi possivel conectar ao servidor";
    case NetworkFailure::ConnectionLost:
        return "a conexao caiu";
    case NetworkFailure::NotSecure:
        return "falha na conexao segura (certificado)";
    }
    return "";
}

} // namespace

HttpResult HttpGet(const std::string& url, std::uint64_t maxBytes) {
    return HttpGetWith(url, maxBytes, HttpTimeouts{}, {});
}

void SetFailure(HttpResult& result, NetworkFailure failure) {
    result.error = Words(failure);
}

void SetFailureNumber(HttpResult& result, std::uint32_t number) {
    result.error = "erro de rede " + std::to_string(number);
}

void SetInvalidAddress(HttpResult& result, const std::string& url) {
    result.error = "endereco invalido: " + url;
}

std::string TooLargeText(std::uint64_t maxBytes) {
    return "arquivo grande demais (mais de " + std::to_string(maxBytes / BytesPerMegabyte) + " MB)";
}

std::string StoppedText() {
    return "a busca foi interrompida";
}

bool CanBeAddress(std::string_view url) {
    const auto isControl = [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 0x20 || byte == 0x7F;
    };
    return Text::IsUtf8(url) && std::none_of(url.begin(), url.end(), isControl);
}

bool AppendToBody(HttpResult& result, std::string_view bytes, std::uint64_t maxBytes) {
    if (bytes.size() > maxBytes - result.body.size()) {
        result.error = TooLargeText(maxBytes);
        return false;
    }
    result.body.append(bytes);
    return true;
}

void JudgeStatus(HttpResult& result, const std::string& url) {
    result.ok = result.status == StatusOk;
    if (result.status == StatusNotFound) {
        result.error = "arquivo nao encontrado no servidor (404): " + url;
    } else if (!result.ok) {
        result.error = "o servidor respondeu " + std::to_string(result.status) + " para " + url;
    }
}

} // namespace Merivane::Catalog
