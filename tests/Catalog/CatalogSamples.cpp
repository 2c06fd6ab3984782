#include "Catalog/CatalogSamples.hpp"

#include "Catalog/CatalogAddress.hpp"
#include "Catalog/CatalogIndex.hpp"
#include "Catalog/ProductAddress.hpp"
#include "Catalog/Sha256.hpp"
#include "Support/Places.hpp"

namespace Merivane::Catalog {

CatalogProduct SampleProduct() {
    CatalogProduct product;
    product.id = "luz/ab-12";
    product.version = 3;
    product.updated = "2026-11-20";
    product.manufacturer = "Luz";
    product.code = "AB-12";
    product.description = "Painel Ótimo";
    product.lamp = "LED";
    product.colourRendering = 80.5;
    product.flux = 3000.1;
    product.power = 29.125;
    product.width = 0.6;
    product.length = 1.2;
    product.height = 0.123456789;
    product.block = "Painel_1";
    product.hostVersion = 28;
    product.part = {"pacotes/luz/ab-12/ab-12.gsm", 1500, "ab"};
    product.ies = {"pacotes/luz/ab-12/ab-12.ies", 900, "cd"};
    product.curve = {"pacotes/luz/ab-12/curva.png", 0, ""};
    return product;
}

CatalogFile TrueFile(const std::string& path, const std::string& bytes) {
    return {path, static_cast<std::int64_t>(bytes.size()), Sha256Hex(bytes)};
}

CatalogProduct WriteSampleCatalog(const std::filesystem::path& folder) {
    CatalogProduct product = SampleProduct();
    const auto publish = [&folder](CatalogFile& file, const std::string& bytes) {
        file = TrueFile(file.path, bytes);
        std::filesystem::create_directories((folder / file.path).parent_path());
        Tests::WriteBytes(folder / file.path, bytes);
    };
    publish(product.part, "bytes do bloco");
    publish(product.ies, "IESNA:LM-63-2002\n");
    publish(product.curve, "bytes da curva");
    Tests::WriteBytes(folder / ProductPackageFolder(product.id) / "produto.json",
                      JsonWrite(WriteCatalogProduct(product)));
    WriteSampleIndex(folder, {product});
    return product;
}

void WriteSampleIndex(const std::filesystem::path& folder,
                      const std::vector<CatalogProduct>& products) {
    Tests::WriteBytes(folder / CatalogIndexName,
                      JsonWrite(BuildCatalogIndex(products, "2026-11-21")));
}

} // namespace Merivane::Catalog
